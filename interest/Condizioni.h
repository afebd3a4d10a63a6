#pragma once
// The conditions of the open account: the five one-record files .Iat, .Ipa, .Opz, .Onp and .spe
// and their copies in the state.
#include <string>

// Reads the five files into the state, each copy cleared first. A file not there yet is made
// empty and reads as an empty record, without a word.
void CaricaCondizioni();
// Writes the five copies back, in the same order.
void SalvaCondizioni();

// A rate as the text of its 32-bit float: the seven digits a single holds, "," as decimal point
// ("7,15" for the float nearest 7.15, "0" for zero).
std::string TestoTasso(float tasso);
