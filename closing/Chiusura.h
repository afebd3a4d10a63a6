#pragma once
// The periodic close of the open account: aligned movements up to a date and finished cheque
// books leave the ledger, their sum goes into the carried-forward balance, and the list of what
// left is printed.
#include <functional>
#include <string>

// The close at `dataChiusura` ("DD/MM/YYYY", checked by the caller), after the question.
void ChiusuraPeriodica(const std::string& dataChiusura);

// Marks the finished books ("S" in Chiuso) with their movements and compacts the sheets of the
// others (.FOG, .NRF). `d` is the closing date number.
void ChiudiAssegni(long d);
// Compacts the books that stay (.CAR, .NRC), taking MovCosto from the movements as they are.
void ChiudiCarnet();

// NrCarnet of each sheet from the book whose range holds its number, the later book winning;
// the sheets written back to .FOG and read again.
void FogliAiCarnet();
// NrMovimento of each sheet from the movements whose NrDoc reads as its number, whatever the
// causale, the last one winning; the same writing and reading.
void FogliAiMovimenti();
// The lists, the balances, .Ord and the cheque lists rebuilt after the files changed.
void RicostruisciConto();

// The failure path of the close, its undo and the reorganisation: a failure of `lavoro` goes to
// ErroreDisco; Riprova ends the operation with no further word and the pointer as it is, the
// other answers tell "Errore interno", "Errore irrecuperabile" or "Erore non riconosciuto" and
// restore the pointer. The files are closed as the failed work unwinds.
void ConPercorsoGuasto(const std::function<void()>& lavoro);
