#include "tests/Ambiente.h"

#include "ledger/CaricaConto.h"
#include "ledger/Registro.h"
#include "store/Date.h"
#include "store/Formato.h"

#include <cstdio>
#include <random>

// Today is 05/07/2001 throughout: date number 732366 + 181 + 5 = 732552.

struct CasoRiga {
    const char* nome;
    RecMovimento movimento;
    bool perValuta;
    double cambio;
    const char* formato;
    std::string attesa;
};

class RigaElencoTest : public AmbienteConto, public ::testing::WithParamInterface<CasoRiga> {};

TEST_P(RigaElencoTest, ColonneDellaRiga) {
    const CasoRiga& c = GetParam();
    Stato.Cambio = c.cambio;
    Stato.FormatoImporti = c.formato;
    const RecMovimento& m = c.movimento;
    EXPECT_EQ(RigaElenco(m, c.perValuta ? m.DataValuta : m.DataOper,
                         c.perValuta && m.Annullato == "S"),
              c.attesa);
}

// 23/06/2001: 732366 + 159 + 23 = 732548; 25/06/2001: 732550. The description is cut to 20
// characters, "Versamento contanti ", trailing blank included; the amount to 15 columns.
INSTANTIATE_TEST_SUITE_P(
    Registro, RigaElencoTest,
    ::testing::Values(
        CasoRiga{"sospeso", Mov(3, "23/06/2001", "25/06/2001", 1234.5, "E", "S", "VS", "12"),
                 false, 1, "#,###,###,##0.00",
                 " 732548  23/06/2001 25/06/2001 0003 Versamento contanti   S   E        12"
                 "        1.234,50"},
        CasoRiga{"allineato_marcato",
                 Mov(3, "23/06/2001", "25/06/2001", 1234.5, "E", "N", "VS", "12"), false, 1,
                 "#,###,###,##0.00",
                 " 732548  23/06/2001 25/06/2001 0003 Versamento contanti   N   E        12"
                 "        1.234,50 *"},
        CasoRiga{"per_valuta_annullato_prima_di_allineato",
                 Mov(3, "23/06/2001", "25/06/2001", 1234.5, "U", "N", "PR", "", "S"), true, 1,
                 "#,###,###,##0.00",
                 " 732550  23/06/2001 25/06/2001 0003 Prelievo              N   U          "
                 "        1.234,50 * *"},
        CasoRiga{"causale_sconosciuta_scorre_a_sinistra",
                 Mov(3, "23/06/2001", "25/06/2001", 5, "E", "S", "ZZ", "A1"), false, 1,
                 "#,###,###,##0.00",
                 " 732548  23/06/2001 25/06/2001 0003   S   E        A1            5,00"},
        CasoRiga{"lire_senza_decimali",
                 Mov(7, "01/01/2001", "01/01/2001", 1000000 / 1936.27, "E", "S", "VS"), false,
                 1936.27, "#,###,###,##0",
                 " 732367  01/01/2001 01/01/2001 0007 Versamento contanti   S   E          "
                 "       1.000.000"},
        CasoRiga{"numero_di_cinque_cifre",
                 Mov(10000, "01/01/2001", "01/01/2001", 1, "E", "S", "VS"), false, 1,
                 "#,###,###,##0.00",
                 " 732367  01/01/2001 01/01/2001 10000 Versamento contanti   S   E          "
                 "            1,00"}),
    [](const auto& info) { return std::string(info.param.nome); });

TEST(NumeroDaRigaTest, ColonneDa32a35) {
    EXPECT_EQ(NumeroDaRiga(" 732548  23/06/2001 25/06/2001 0003 Prelievo"), 3);
    // From 10000 on only the first four digits are read.
    EXPECT_EQ(NumeroDaRiga(" 732367  01/01/2001 01/01/2001 10000 Versamento"), 1000);
    EXPECT_EQ(NumeroDaRiga(""), 0);
}

// One movement and what it does to the four balances (aligned, by operation date, by value
// date, all), starting from zero.
struct CasoSaldi {
    const char* nome;
    RecMovimento movimento;
    double allineamento, operazione, valuta, ultimaData;
};

class SaldiTest : public AmbienteConto, public ::testing::WithParamInterface<CasoSaldi> {};

const CasoSaldi casiSaldi[] = {
    {"oggi_entrata_sospesa", Mov(1, "05/07/2001", "05/07/2001", 100, "E", "S"), 0, 100, 100, 100},
    {"oggi_entrata_allineata", Mov(1, "05/07/2001", "05/07/2001", 100, "E", "N"), 100, 100, 100,
     100},
    {"domani_solo_ultima_data_e_allineamento", Mov(1, "06/07/2001", "06/07/2001", 100, "E", "N"),
     100, 0, 0, 100},
    {"uscita_sospesa_di_oggi", Mov(1, "05/07/2001", "05/07/2001", 50, "U", "S"), 0, -50, -50, -50},
    {"D_A_vuoto_somma", Mov(1, "05/07/2001", "05/07/2001", 7, " ", "N"), 7, 7, 7, 7},
    {"valuta_futura", Mov(1, "04/07/2001", "10/07/2001", 20, "E", "S"), 0, 20, 0, 20},
    // 30/06/2001 numbers 732555, above today's 732552: it counts as post-dated.
    {"fine_giugno_dopo_inizio_luglio", Mov(1, "30/06/2001", "01/07/2001", 30, "E", "S"), 0, 0, 30,
     30},
    {"importo_negativo_inverte_D_A", Mov(1, "05/07/2001", "05/07/2001", -10, "U", "N"), 10, 10, 10,
     10},
    {"sospeso_minuscolo_non_e_allineato", Mov(1, "05/07/2001", "05/07/2001", 5, "E", "n"), 0, 5, 5,
     5},
};

TEST_P(SaldiTest, RicaricaDaiFileConIlRiporto) {
    const CasoSaldi& c = GetParam();
    ScriviMovimenti({c.movimento});
    ScriviRiporto(-250.5);
    CaricaConto();
    EXPECT_EQ(Stato.SaldoAllineamento, -250.5 + c.allineamento);
    EXPECT_EQ(Stato.SaldoOperazione, -250.5 + c.operazione);
    EXPECT_EQ(Stato.SaldoValuta, -250.5 + c.valuta);
    EXPECT_EQ(Stato.SaldoUltimaData, -250.5 + c.ultimaData);
    RecTotali t = LeggiTotali();
    EXPECT_EQ(t.SaldoAllineamento, -250.5 + c.allineamento);
    EXPECT_EQ(t.SaldoUltimaData, -250.5 + c.ultimaData);
}

TEST_P(SaldiTest, ApplicaEStorna) {
    const RecMovimento& m = GetParam().movimento;
    const CasoSaldi& c = GetParam();
    ApplicaMovimento(m.DataValuta, m.DataOper, m.IMPORTO, m.D_A, m.Sospeso);
    EXPECT_EQ(Stato.SaldoAllineamento, c.allineamento);
    EXPECT_EQ(Stato.SaldoOperazione, c.operazione);
    EXPECT_EQ(Stato.SaldoValuta, c.valuta);
    EXPECT_EQ(Stato.SaldoUltimaData, c.ultimaData);
    EXPECT_EQ(LeggiTotali().SaldoOperazione, c.operazione);

    StornaMovimento(m.DataValuta, m.DataOper, m.IMPORTO, m.D_A, m.Sospeso);
    EXPECT_EQ(Stato.SaldoAllineamento, 0);
    EXPECT_EQ(Stato.SaldoOperazione, 0);
    EXPECT_EQ(Stato.SaldoValuta, 0);
    EXPECT_EQ(Stato.SaldoUltimaData, 0);
    EXPECT_EQ(LeggiTotali().SaldoUltimaData, 0);
}

INSTANTIATE_TEST_SUITE_P(Registro, SaldiTest, ::testing::ValuesIn(casiSaldi),
                         [](const auto& info) { return std::string(info.param.nome); });

using RegistroTest = AmbienteConto;

TEST_F(RegistroTest, TotSbagliatoRiparatoAlCaricamentoConLeSueDate) {
    ScriviMovimenti({Mov(1, "01/07/2001", "01/07/2001", 100, "E", "N"),
                     Mov(2, "02/07/2001", "09/07/2001", 40, "U", "S")});
    RecTotali sbagliato;
    sbagliato.SaldoAllineamento = sbagliato.SaldoValuta = 999;
    sbagliato.SaldoOperazione = sbagliato.SaldoUltimaData = -999;
    sbagliato.PrimaDataOperazione = "01/01/1999";
    sbagliato.UltimaDataOperazione = "02/02/1999";
    sbagliato.PrimaDataValuta = "03/03/1999";
    sbagliato.UltimaDataValuta = "04/04/1999";
    ScriviIn(File(".TOT"), sbagliato, 1);

    CaricaConto();

    RecTotali t = LeggiTotali();
    EXPECT_EQ(t.SaldoAllineamento, 100);
    EXPECT_EQ(t.SaldoOperazione, 60);
    EXPECT_EQ(t.SaldoValuta, 100);
    EXPECT_EQ(t.SaldoUltimaData, 60);
    // The rebuild writes the balances only.
    EXPECT_EQ(t.PrimaDataOperazione, "01/01/1999");
    EXPECT_EQ(t.UltimaDataOperazione, "02/02/1999");
    EXPECT_EQ(t.PrimaDataValuta, "03/03/1999");
    EXPECT_EQ(t.UltimaDataValuta, "04/04/1999");
}

TEST_F(RegistroTest, ConFlagOperazioneIlRicalcoloNonRidisegna) {
    ScriviMovimenti({Mov(1, "05/07/2001", "05/07/2001", 100, "E", "N")});
    Stato.FlagOperazione = 1;
    CaricaConto();
    EXPECT_EQ(app->MDIForm1.Saldi(0).Text(), "");
    EXPECT_EQ(LeggiTotali().SaldoAllineamento, 100);
}

TEST_F(RegistroTest, ContatoreCortoIgnoraIlSurplusCheVieneSovrascritto) {
    ScriviMovimenti({Mov(1, "01/07/2001", "01/07/2001", 10, "E", "N"),
                     Mov(2, "02/07/2001", "02/07/2001", 20, "E", "N"),
                     Mov(3, "03/07/2001", "03/07/2001", 500, "E", "N")},
                    2);
    app->Form9.S.Show();
    EXPECT_EQ(Stato.NumMovimenti, 2);
    EXPECT_EQ(Stato.SaldoUltimaData, 30);
    EXPECT_EQ(NumeriInLista(app->Form9.ElencoMovim), (std::vector<int>{1, 2}));

    Stato.NumMovimenti = 3;
    Stato.Movimenti[3] = Mov(3, "04/07/2001", "04/07/2001", 1, "U", "S");
    AggiungiMovimento();
    auto mov = Leggi(".MOV");
    ASSERT_EQ(mov.size(), 3u);
    EXPECT_EQ(mov[2].DataOper, "04/07/2001");
    EXPECT_EQ(mov[2].IMPORTO, 1);
    EXPECT_EQ(Stato.SaldoUltimaData, 29);
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
    double operazione = 0, valuta = 0, allineato = 0;
    const int oggi = Intero32(NumeroData("05/07/2001"));
    for (int nr = 1; nr <= 2000; ++nr) {
        auto data = [&] {
            char testo[11];
            std::snprintf(testo, sizeof testo, "%02d/%02d/%04d", tra(1, 28), tra(1, 12),
                          tra(0, 5) == 0 ? tra(1900, 1926) : tra(1990, 2099));
            return std::string(testo);
        };
        double importo = tra(0, 2) == 0 ? importi[tra(0, 11)] : tra(-100000, 10000000) / 100.0;
        std::string documento = tra(0, 3) == 0 ? " è" + std::to_string(tra(0, 99)) + " " : "";
        const char* causale = std::vector{"VS", "PR", "AS", "ZZ"}[tra(0, 3)];
        movimenti.push_back(Mov(nr, data(), data(), importo, tra(0, 1) ? "E" : "U",
                                tra(0, 1) ? "S" : "N", causale, documento, tra(0, 4) ? "N" : "S"));
        const RecMovimento& m = movimenti.back();
        const double quota = m.D_A == "U" ? -importo : importo;
        if (Intero32(NumeroData(m.DataOper)) <= oggi) operazione += quota;
        if (Intero32(NumeroData(m.DataValuta)) <= oggi) valuta += quota;
        if (m.Sospeso == "N") allineato += quota;
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
        std::vector<std::string> attese = generale(f.elencoValuta, false);
        EXPECT_EQ(f.ElencoMovim.Righe(), attese);
        ScriviOrd();
        std::vector<int> ordine;
        for (const std::string& riga : attese) ordine.push_back(std::stoi(riga.substr(31, 4)));
        ordine.push_back(0);
        EXPECT_EQ(Numeri(Leggi(".Ord")), ordine);
    }
    RecTotali t = LeggiTotali();
    EXPECT_EQ(t.SaldoOperazione, operazione);
    EXPECT_EQ(t.SaldoValuta, valuta);
    EXPECT_EQ(t.SaldoAllineamento, allineato);
}
