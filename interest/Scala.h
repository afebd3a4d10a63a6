#pragma once
// The ladder of the open account's balances by value date over a period: its rows, their
// balances, and how the screen Staffa shows them.
#include "store/RecordRegistro.h"

#include <array>
#include <string>
#include <vector>

// At most 366 rows and 1000 movements; what lies beyond is dropped without a word.
inline constexpr int RigheScala = 366;
inline constexpr int MovimentiScala = 1000;

struct ScalaValute {
    int n = 0; // rows 1 to n; row n + 1 stays blank
    std::array<std::string, RigheScala + 2> DateScala{};
    std::array<double, RigheScala + 2> SaldiScala{}; // stored units, balance at each date
    std::vector<std::string> Chiavi;                 // the sorted keys; row r has Chiavi[r - 1]
    std::vector<RecMovimento> Selezione;             // the movements of the period
};

// How the day before `dal` is written. The competences take the century of `dal` with the
// year of the day before, so that 01/01/2000 gives 31/12/2099.
enum class GiornoPrima { Vero, SecoloDiDal };
std::string TestoGiornoPrima(const std::string& dal, GiornoPrima modo);

// The ladder of `dal` to `al` (both valid dates): the movements of the period, all or only those
// not pending, each value date a row ordered by the key Str(NumeroData) + " " + date, a row for
// `dal` and `al` when no movement stands there, the day before `dal` always, and the running
// balance from the carried balance and everything before `dal`. `ricerca` is how many of the
// rows the date search looks through. `perStampa`: the printed statement's ladder, whose day
// before a `dal` without movements sorts after every other row (and `al` then always has one).
ScalaValute CostruisciScala(const std::string& dal, const std::string& al, bool soloNonSospesi,
                            GiornoPrima giornoPrima = GiornoPrima::Vero, int ricerca = 365,
                            bool perStampa = false);

// The date of a key with its leading blank, Mid(key, 8, 11), as the rows show it.
std::string DataDiChiave(const std::string& chiave);
// Calendar days from row r to the next one; 0 when the next is blank or later than `al`.
long GiorniRiga(const ScalaValute& s, int r, const std::string& al);
// An amount through FormatoImporti, blanks on the left up to `larghezza`.
std::string ImportoInColonna(double importo, int larghezza = 16);
// 1, 10, 100, 1000 for the divisor choice 1 to 4, 0 for any other.
int DivisoreNumeri();

// The ladder's rows, one a date and an "EC " row after each beyond the credit line, with the
// figures its closing lines show.
struct RigheLadder {
    std::vector<std::string> righe;
    double debitori = 0, creditori = 0;
    double MassimoScoperto = 0, MassimaEccedenza = 0;
};
RigheLadder CorpoScala(const ScalaValute& s, const std::string& al);

// The rows of List1: the ladder's rows, then the totals.
std::vector<std::string> MostraScala(const ScalaValute& s, const std::string& al);
