// Ladders worked out by hand: rows, days, numeri, excess rows and closing rows.
#include "tests/interest/Conto.h"

#include "interest/Scala.h"
#include "interest/Staffa.h"

namespace {
// A row: a negative balance's numeri right after the days, the others one column further.
std::string R(const std::string& data, const std::string& saldo, const std::string& gg,
              const std::string& numeri, const char* inizio = "   ") {
    return inizio + (" " + data) + "  " + C(saldo) + " " + std::string(4 - gg.size(), ' ') + gg +
           " " + (saldo[0] == '-' ? "" : std::string(17, ' ')) + C(numeri);
}
// The rows, then the closing ones; the overdraft ones only when there is one.
std::vector<std::string> Chiusura(std::vector<std::string> r, const std::string& finale,
                                  const std::string& dare, const std::string& avere,
                                  const std::string& eccedenza, const std::string& scoperto = "") {
    const std::string linea(87, '-');
    r.insert(r.end(), {linea, "Liq. finale     " + C(finale), linea,
                       "                             Totali   " + C(dare) + " " + C(avere), linea,
                       " massima eccedenza/estrafido Lire     " + C(eccedenza)});
    if (!scoperto.empty())
        r.insert(r.end(), {linea, " massimo scoperto            Lire     " + C(scoperto)});
    return r;
}

struct Periodo {
    const char *dal, *al;
    bool nonSospesi;
    double fido, cambio, riporto;
    short divisore;
};
struct Caso {
    const char* nome;
    std::vector<RecMovimento> movimenti;
    Periodo p;
    std::vector<std::string> righe;
};
} // namespace

struct ScalaTest : AmbienteConto {};

TEST_F(ScalaTest, Scale) {
    const std::vector<Caso> casi = {
        // Before dal: 500 in on 15/03 opens; 300 out on dal; 100 in and 50 out on 10/04; 2000
        // out on 20/05 goes 750 beyond the line of 1000; 05/07 is after al. Days 1, 9, 40, 11,
        // 0. Numeri 500*1, 200*9, 250*40 credit = 12300; debit 1000*11 + EC 750*11 = 19250.
        {"PrimaDentroDopo",
         {M("15/03/2001", 500, "E"), M("01/04/2001", 300, "U"), M("10/04/2001", 100, "E"),
          M("10/04/2001", 50, "U"), M("20/05/2001", 2000, "U"), M("05/07/2001", 1000, "E")},
         {"01/04/2001", "31/05/2001", false, 1000, 1, 0, 1},
         Chiusura({R("31/03/2001", "500,00", "1", "500,00"),
                   R("01/04/2001", "200,00", "9", "1.800,00"),
                   R("10/04/2001", "250,00", "40", "10.000,00"),
                   R("20/05/2001", "-1.000,00", "11", "11.000,00"),
                   R("20/05/2001", "-750,00", "11", "8.250,00", "EC "),
                   R("31/05/2001", "-1.000,00", "0", "0,00"),
                   R("31/05/2001", "-750,00", "0", "0,00", "EC ")},
                  "-1.750,00", "19.250,00", "12.300,00", "750,00", "1.750,00")},
        // Only those not pending: the pending 500 before dal still opens on the carried 100; the
        // pending 70 and 600 in the period are left out, so only dal stands there, then al.
        // Divisor 1000: 600 * 1 / 1000 = 0.6, 600 * 3 / 1000 = 1.8.
        {"NonSospesiERiporto",
         {M("15/03/2001", 500, "E", "S"), M("02/04/2001", 70, "E", "S"),
          M("03/04/2001", 600, "U", "S")},
         {"01/04/2001", "04/04/2001", true, 0, 1, 100, 4},
         Chiusura({R("31/03/2001", "600,00", "1", "0,60"), R("01/04/2001", "600,00", "3", "1,80"),
                   R("04/04/2001", "600,00", "0", "0,00")},
                  "600,00", "0,00", "2,40", "0,00")},
        // 03/07 and 25/06 share a date number (June counts from 159); the key text puts 03/07
        // first, so the row of 25/06 follows it with -8 days. dal and al get rows of their own.
        // Numeri: 0 up to 03/07, then 100*-8 = -800, 200*15 = 3000: credit 2200.
        {"GiugnoTraLuglio",
         {M("25/06/2001", 100, "E"), M("03/07/2001", 100, "E")},
         {"20/06/2001", "10/07/2001", false, 0, 1, 0, 1},
         Chiusura({R("19/06/2001", "0,00", "1", "0,00"), R("20/06/2001", "0,00", "13", "0,00"),
                   R("03/07/2001", "100,00", "-8", "-800,00"),
                   R("25/06/2001", "200,00", "15", "3.000,00"),
                   R("10/07/2001", "200,00", "0", "0,00")},
                  "200,00", "0,00", "2.200,00", "0,00")},
        // Lire at 1936,27 to the Euro: 5 Euro before dal show 9681,35; 10 more on 02/04 make
        // 29044,05. The credit line of 10 Euro is 19362,70: never reached.
        {"Lire",
         {M("15/03/2001", 5, "E"), M("02/04/2001", 10, "E")},
         {"01/04/2001", "03/04/2001", false, 10, 1936.27, 0, 1},
         Chiusura({R("31/03/2001", "9.681,35", "1", "9.681,35"),
                   R("01/04/2001", "9.681,35", "1", "9.681,35"),
                   R("02/04/2001", "29.044,05", "1", "29.044,05"),
                   R("03/04/2001", "29.044,05", "0", "0,00")},
                  "29.044,05", "0,00", "48.406,75", "0,00")},
    };
    for (const Caso& c : casi) {
        SCOPED_TRACE(c.nome);
        Movimenti(c.movimenti);
        Stato.Conti[1].Fido = c.p.fido;
        Stato.Cambio = c.p.cambio;
        Stato.Riporto[1].ImportoRiporto = c.p.riporto;
        Stato.OpzioniCalcolo.Divisore = c.p.divisore;
        ScalaValute s = CostruisciScala(c.p.dal, c.p.al, c.p.nonSospesi);
        EXPECT_EQ(MostraScala(s, c.p.al), c.righe);
    }
}

TEST_F(ScalaTest, LaStampaChiudeASuoModo) {
    // 1500 out on 06/04 against a line of 1000, printed from 03/04 to 10/04: the rows one column
    // to the right, closing rows worded and placed as the paper has them, blank to line 47.
    Stato.Conti[1].Fido = 1000;
    Stato.OpzioniCalcolo.Divisore = 1;
    Movimenti({M("06/04/2001", 1500, "U")});
    app->Staffa.dal.SetText("03/04/2001");
    app->Staffa.al.SetText("10/04/2001");
    app->Staffa.Stampa.Clicca();
    const auto& carta = porta.carta;
    EXPECT_TRUE(Ha(carta, "| " + R("10/04/2001", "-500,00", "0", "0,00", "EC ") + "|"));
    EXPECT_TRUE(Ha(carta, "|Liq. finale      " + C("-1.500,00") + "|"));
    EXPECT_TRUE(Ha(carta, "|" + std::string(30, ' ') + "Totali   " + C("6.000,00") + " " +
                              C("0,00") + "|"));
    EXPECT_TRUE(Ha(carta, "| massima eccedenza/extra fido  Lire    " + C("500,00") + "|"));
    auto scoperto = std::find(carta.begin(), carta.end(),
                              "|     Massimo scoperto          Lire    " + C("1.500,00") + "|");
    ASSERT_NE(scoperto, carta.end());
    // The count starts at 1 and the six rows make it 7; the closing rows don't count: 47 - 7 = 40
    // blank lines, and one more before the foot.
    EXPECT_EQ(std::count(scoperto, carta.end(), "||"), 41);
}
