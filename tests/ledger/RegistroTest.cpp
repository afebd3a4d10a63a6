#include "tests/Ambiente.h"

#include "ledger/CaricaConto.h"
#include "ledger/Registro.h"
#include "store/Date.h"
#include "store/Formato.h"

#include <array>
#include <cstdio>
#include <random>

// Today is 05/07/2001 throughout: date number 732366 + 181 + 5 = 732552.
using RegistroTest = AmbienteConto;

namespace {
std::array<double, 4> Saldi() {
    return {Stato.SaldoAllineamento, Stato.SaldoOperazione, Stato.SaldoValuta,
            Stato.SaldoUltimaData};
}
} // namespace

// 25/06/2001: 732366 + 159 + 25 = 732550. By value date, a movement marked for elimination
// gets that mark before the one of an aligned movement; from 10000 on a movement's number takes
// five columns, and only its first four digits are read back.
TEST_F(RegistroTest, ColonneDellaRiga) {
    const std::string riga =
        RigaElenco(Mov(3, "23/06/2001", "25/06/2001", 1234.5, "U", "N", "PR", "", "S"),
                   "25/06/2001", true);
    EXPECT_EQ(riga, " 732550  23/06/2001 25/06/2001 0003 Prelievo              N   U          "
                    "        1.234,50 * *");
    EXPECT_EQ(NumeroDaRiga(riga), 3);
    const std::string lunga =
        RigaElenco(Mov(10000, "01/01/2001", "01/01/2001", 1, "E", "S"), "01/01/2001");
    EXPECT_EQ(lunga.substr(30, 7), " 10000 ");
    EXPECT_EQ(NumeroDaRiga(lunga), 1000);
}

// One movement and what it does to the four balances (aligned, by operation date, by value
// date, all) from zero: applied, taken out again, and rebuilt from the files over a carried
// -250.50.
TEST_F(RegistroTest, SaldiDiUnMovimento) {
    const struct {
        RecMovimento m;
        std::array<double, 4> saldi;
    } casi[] = {
        {Mov(1, "05/07/2001", "05/07/2001", 100, "E", "S"), {0, 100, 100, 100}},
        {Mov(1, "05/07/2001", "05/07/2001", 100, "E", "N"), {100, 100, 100, 100}},
        {Mov(1, "06/07/2001", "06/07/2001", 100, "E", "N"), {100, 0, 0, 100}},
        {Mov(1, "05/07/2001", "05/07/2001", 50, "U", "S"), {0, -50, -50, -50}},
        {Mov(1, "05/07/2001", "05/07/2001", 7, " ", "N"), {7, 7, 7, 7}},
        {Mov(1, "04/07/2001", "10/07/2001", 20, "E", "S"), {0, 20, 0, 20}},
        // 30/06/2001 numbers 732555, above today's 732552: it counts as post-dated.
        {Mov(1, "30/06/2001", "01/07/2001", 30, "E", "S"), {0, 0, 30, 30}},
        {Mov(1, "05/07/2001", "05/07/2001", -10, "U", "N"), {10, 10, 10, 10}},
        {Mov(1, "05/07/2001", "05/07/2001", 5, "E", "n"), {0, 5, 5, 5}},
    };
    for (const auto& c : casi) {
        const RecMovimento& m = c.m;
        SCOPED_TRACE(&c - casi);
        Stato.SaldoAllineamento = Stato.SaldoOperazione = 0;
        Stato.SaldoValuta = Stato.SaldoUltimaData = 0;
        ApplicaMovimento(m.DataValuta, m.DataOper, m.IMPORTO, m.D_A, m.Sospeso);
        EXPECT_EQ(Saldi(), c.saldi);
        EXPECT_EQ(LeggiTotali().SaldoOperazione, c.saldi[1]);
        StornaMovimento(m.DataValuta, m.DataOper, m.IMPORTO, m.D_A, m.Sospeso);
        EXPECT_EQ(Saldi(), (std::array<double, 4>{}));
        EXPECT_EQ(LeggiTotali().SaldoUltimaData, 0);

        ScriviMovimenti({m});
        ScriviRiporto(-250.5);
        CaricaConto();
        for (int k = 0; k < 4; ++k) EXPECT_EQ(Saldi()[k], -250.5 + c.saldi[k]) << k;
        EXPECT_EQ(LeggiTotali().SaldoValuta, -250.5 + c.saldi[2]);
    }
}

// A wrong .TOT is rebuilt at the load, its balances only; with the flag of an operation up
// the panel isn't redrawn.
TEST_F(RegistroTest, TotSbagliatoRiparatoAlCaricamento) {
    ScriviMovimenti({Mov(1, "01/07/2001", "01/07/2001", 100, "E", "N"),
                     Mov(2, "02/07/2001", "09/07/2001", 40, "U", "S")});
    RecTotali t{999, 999, -999, -999, "01/01/1999", "", "", "04/04/1999"};
    ScriviIn(File(".TOT"), t, 1);
    Stato.FlagOperazione = 1;
    CaricaConto();
    t = LeggiTotali();
    // Aligned 100; by value 100, the 40 valued after today; by operation and all 100 - 40.
    EXPECT_EQ((std::array{t.SaldoAllineamento, t.SaldoValuta, t.SaldoOperazione,
                          t.SaldoUltimaData}),
              (std::array<double, 4>{100, 100, 60, 60}));
    EXPECT_EQ(t.PrimaDataOperazione.Testo() + t.UltimaDataValuta.Testo(), "01/01/199904/04/1999");
    EXPECT_EQ(app->MDIForm1.Saldi(0).Text(), "");
}

// The list line as the general functions give it, one by one.
std::string RigaGenerale(const RecMovimento& m, const std::string& chiave, bool marca) {
    std::string causale;
    for (long j = Stato.NumCausali; j >= 1; --j)
        if (Stato.Causali[j].CodCausale == m.Causale)
            causale = Left(Stato.Causali[j].DescCausale, 20);
    return Str(Intero32(NumeroData(chiave))) + "  " + m.DataOper.Testo() + " " +
           m.DataValuta.Testo() + " " + Format(m.NrOper, "0000") + " " + causale + "  " +
           m.Sospeso.Testo() + "   " + m.D_A.Testo() + "  " +
           AllineaDestra(Trim(m.NrDoc), 8) + " " +
           AllineaDestra(Format(m.IMPORTO * Stato.Cambio, Stato.FormatoImporti), 15) +
           (marca ? " *" : "") + (m.Sospeso == "N" ? " *" : "");
}

// A large account of odd amounts (thirds, half cents, tiny, huge, negative, whole), dates from
// before 1927 (shorter keys) to 2099, documents with blanks and accents: both refills give the
// lines of the general functions, in the order of one insertion at a time; .Ord follows the
// list; .TOT has the sums.
TEST_F(RegistroTest, RicaricaComeLeFunzioniGeneraliSuUnContoCasuale) {
    Causale(3, "AS", "Assegno");
    Stato.NumCausali = 3;
    std::mt19937 caso(18);
    auto tra = [&](int da, int a) { return std::uniform_int_distribution<int>(da, a)(caso); };
    const double importi[] = {0.005, 0.015, 1.0 / 3, 2.675, 1e-7, 123456789.995, 1e9 + 0.01,
                              5e11, -0.004, 0, 1.005, 999999.999};
    std::vector<RecMovimento> movimenti;
    std::array<double, 3> saldi{};    // by operation, by value, aligned
    const int oggi = Intero32(NumeroData("05/07/2001"));
    auto data = [&] {
        char testo[11];
        std::snprintf(testo, sizeof testo, "%02d/%02d/%04d", tra(1, 28), tra(1, 12),
                      tra(0, 5) == 0 ? tra(1900, 1926) : tra(1990, 2099));
        return std::string(testo);
    };
    for (int nr = 1; nr <= 2000; ++nr) {
        double importo = tra(0, 2) == 0 ? importi[tra(0, 11)] : tra(-100000, 10000000) / 100.0;
        std::string documento = tra(0, 3) == 0 ? " è" + std::to_string(tra(0, 99)) + " " : "";
        const char* causale = std::vector{"VS", "PR", "AS", "ZZ"}[tra(0, 3)];
        movimenti.push_back(Mov(nr, data(), data(), importo, tra(0, 1) ? "E" : "U",
                                tra(0, 1) ? "S" : "N", causale, documento, tra(0, 4) ? "N" : "S"));
        const RecMovimento& m = movimenti.back();
        const double quota = m.D_A == "U" ? -importo : importo;
        if (Intero32(NumeroData(m.DataOper)) <= oggi) saldi[0] += quota;
        if (Intero32(NumeroData(m.DataValuta)) <= oggi) saldi[1] += quota;
        if (m.Sospeso == "N") saldi[2] += quota;
    }
    ScriviMovimenti(movimenti);
    auto& f = app->Form9;
    for (const auto& [cambio, formato] :
         {std::pair{1.0, "#,###,###,##0.00"}, {1936.27, "#,###,###,##0"},
          {1.0, "#,###,###,##0.0000"}, {1.0, "#,##0.00;(#,##0.00)"}}) {
        SCOPED_TRACE(formato);
        Stato.Cambio = cambio;
        Stato.FormatoImporti = formato;
        CaricaConto();
        // The general lines go one at a time into the list that the refill leaves alone.
        auto generale = [&](Controllo& lista, bool perValuta) {
            lista.Clear();
            for (const RecMovimento& m : movimenti)
                lista.AddItem(RigaGenerale(m, perValuta ? m.DataValuta : m.DataOper,
                                           perValuta && m.Annullato == "S"));
            return lista.Righe();
        };
        ElencaPerValuta();
        EXPECT_EQ(f.elencoValuta.Righe(), generale(f.ElencoMovim, true));
        ElencaPerOperazione();
        EXPECT_EQ(f.ElencoMovim.Righe(), generale(f.elencoValuta, false));
        ScriviOrd();
        std::vector<int> ordine = NumeriInLista(f.ElencoMovim);
        ordine.push_back(0);
        EXPECT_EQ(Numeri(Leggi(".Ord")), ordine);
    }
    RecTotali t = LeggiTotali();
    EXPECT_EQ((std::array{t.SaldoOperazione, t.SaldoValuta, t.SaldoAllineamento}), saldi);
}
