#pragma once
// The summary of the accounts of the data directory: each one's balance, credit line and what
// remains available, read straight from Conti.dat and the accounts' .TOT, with no account open.
#include <string>
#include <vector>

// One account of the summary; the figures in Euro.
struct VoceRiepilogo {
    std::string codice;     // CodConto, trimmed: the stem of its files
    std::string banca;      // NomeBanca as stored
    double saldo = 0;
    double fido = 0;
    double disponibile = 0; // fido + saldo: a debit eats into the credit line
};

// Conti.dat into the table (records 1 to NumConti), then for each account in table order its
// .TOT: SaldoValuta when `perValuta`, otherwise SaldoOperazione. A missing .TOT is left behind
// empty and reads as zero.
std::vector<VoceRiepilogo> LeggiRiepilogo(bool perValuta);

// Form22's list, one line an account, and its totals panel, for the option that is on.
void ElencaRiepilogo();
