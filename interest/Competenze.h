#pragma once
// The competences of a period: interest by dated rates, commissions and charges, as the text
// rows of Staffa's List3. Nothing is written and nothing is booked.
#include "interest/Scala.h"

#include <array>
#include <string>
#include <vector>

struct Competenze {
    std::string dal, al;
    std::string GiornoPrima; // the first row's date, as the rate tests use it
    ScalaValute Scala;
    double DivisoreNumeri = 0, FattoreInteresse = 0;
    int AnnoCreditori = 365, AnnoDebitori = 365;
    bool FineAnno = false;
    bool Carta = false; // the printed statement: its own ladder, spacing and cuts

    // Numeri by row, in single precision as summed by rate; totals in double. Debits negative.
    std::array<float, RigheScala + 1> NumeriDebitoriData{}, NumeriCreditoriData{},
        NumeriFuoriFidoData{};
    double TotaleNumeriDebitori = 0, TotaleNumeriCreditori = 0, TotaleNumeriFuoriFido = 0;
    double MassimoScoperto = 0, MassimaEccedenza = 0, UltimaEccedenza = 0;
    std::string DataMassimoScoperto = "__/__/____";

    double InteressiLordi = 0, InteressiNetti = 0, Ritenuta = 0, InteressiDebitori = 0;
    std::array<double, 21> VociCosto{};
    short ContaScritture = 0;

    std::vector<std::string> Righe;
};

// The ladder of the period by the competences' own rules, its numeri by row, the credit interest
// with the withholding tax and the debit interest within and beyond the credit line, with their
// rows. `dal` and `al` are valid dates.
Competenze CalcolaInteressi(const std::string& dal, const std::string& al, bool soloNonSospesi,
                            bool carta = false);
// Goes on with the commissions, the free and the fixed charges, the summary and the commission
// on the excess.
void CalcolaCosti(Competenze& c);

// A rate of the statement, "00.000".
std::string TestoAliquota(float tasso);

struct Staffa;
// "Interessi": the first rate dates and the period checked, then the whole statement into List3.
void CalcolaCompetenze(Staffa& f);
