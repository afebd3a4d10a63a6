// How the close finishes and compacts the cheque books, and how the reorganisation ties sheets
// to books and movements.
#include "AmbienteChiusura.h"

#include "closing/Chiusura.h"
#include "closing/Riordino.h"
#include "store/Date.h"

#include <functional>
#include <vector>

namespace {
// Book 1 with cheques 1 to 10, all out of the hands and aligned, each sheet dated 01/06/2001 and
// tied to no movement but cheque 4, whose "AS" is movement 2; movement 1 is the book's cost.
void Prepara() {
    Stato.NumCarnet = 1;
    RecCarnet& c = Stato.Carnet[1];
    c.NrCarnet = 1;
    c.MovCosto = 1;
    c.DataCarnet = "01/01/2001";
    c.NrInf = 1;
    c.NrFinale = 10;
    c.Chiuso = "N";
    c.FogliFuori = 0;
    Stato.NumAssegni = 10;
    for (int k = 1; k <= 10; ++k) {
        RecAssegno& a = Stato.Assegni[k];
        a = RecAssegno{};
        a.NrFoglio = static_cast<std::int16_t>(k);
        a.NrCarnet = 1;
        a.NrAssegno = k;
        a.DataAssegno = "01/06/2001";
    }
    Stato.Assegni[4].NrMovimento = 2;
    Stato.NumMovimenti = 2;
    Stato.Movimenti[1].NrOper = 1;
    Stato.Movimenti[1].NrDoc = "1";
    Stato.Movimenti[1].Causale = "CA";
    Stato.Movimenti[2].NrOper = 2;
    Stato.Movimenti[2].NrDoc = "4";
    Stato.Movimenti[2].Causale = "AS";
    for (int m = 0; m <= 2; ++m) {
        Stato.Movimenti[m].Annullato = "N";
        Stato.Movimenti[m].DataOper = Stato.Movimenti[m].DataValuta = "01/06/2001";
    }
}

struct Caso {
    const char* nome;
    std::function<void()> cambia;
    const char* chiuso;
    short fogli;                 // NumAssegni after the compaction
    const char* annullati;       // Annullato of movements 0, 1, 2
};

TEST_F(AmbienteChiusura, FinishedBooksAndTheCompactionOfSheets) {
    // 15/06: 732366 + 159 + 15 = 732540; 01/06 is 732526, 01/07 732548.
    const long d = static_cast<long>(NumeroData("15/06/2001"));
    const std::vector<Caso> casi = {
        // Ten sheets dated by the close: finished; its cost, its cheque and, through the sheets
        // tied to no movement, the blank slot 0 are marked; no sheet stays.
        {"finished", [] {}, "S", 0, "SSS"},
        // Sheet 4 is written once for its one movement: still ten.
        {"one sheet out", [] { Stato.Carnet[1].FogliFuori = 1; }, "N", 10, "NNN"},
        {"a sheet after the close", [] { Stato.Assegni[7].DataAssegno = "01/07/2001"; }, "N",
         10, "NNN"},
        // A blank date counts as 0, so as early.
        {"a blank date", [] { Stato.Assegni[7].DataAssegno = ""; }, "S", 0, "SSS"},
        {"a book dated after the close", [] { Stato.Carnet[1].DataCarnet = "01/07/2001"; }, "N",
         10, "NNN"},
        // An eleventh sheet in the book's range counts 11: not exactly ten.
        {"eleven sheets",
         [] {
             Stato.NumAssegni = 11;
             Stato.Assegni[11] = Stato.Assegni[10];
         },
         "N", 11, "NNN"},
        // Sheet 4 matches two movements and is written twice; sheet 9 tied to a movement
        // that no NrDoc names is left out: 10 + 1 - 1.
        {"two matches and none",
         [] {
             Stato.Carnet[1].FogliFuori = 1;
             Stato.NumMovimenti = 3;
             Stato.Movimenti[3] = Stato.Movimenti[2];
             Stato.Movimenti[3].NrOper = 3;
             Stato.Assegni[9].NrMovimento = 2;
         },
         "N", 10, "NNN"},
    };
    for (const Caso& caso : casi) {
        Prepara();
        caso.cambia();
        ChiudiAssegni(d);
        EXPECT_EQ(Stato.Carnet[1].Chiuso, caso.chiuso) << caso.nome;
        EXPECT_EQ(Stato.NumAssegni, caso.fogli) << caso.nome;
        EXPECT_EQ(LeggiContatore(File(".NRF")), caso.fogli) << caso.nome;
        std::string annullati;
        for (int m = 0; m <= 2; ++m) annullati += Stato.Movimenti[m].Annullato.Testo();
        EXPECT_EQ(annullati, caso.annullati) << caso.nome;
    }
    // The last case: records 4 and 5 are sheet 4, the second tied to the later movement 3;
    // sheets 5 to 8 follow at 6 to 9, and sheet 10 at 10.
    const int numeri[] = {1, 2, 3, 4, 4, 5, 6, 7, 8, 10};
    for (int r = 1; r <= 10; ++r)
        EXPECT_EQ(LeggiUno<RecAssegno>(File(".FOG"), r).NrAssegno, numeri[r - 1]) << r;
    EXPECT_EQ(LeggiUno<RecAssegno>(File(".FOG"), 4).NrMovimento, 2);
    EXPECT_EQ(LeggiUno<RecAssegno>(File(".FOG"), 5).NrMovimento, 3);
}

// Book 2 overlaps book 1 from cheque 8 on; a VS naming cheque 4 comes after its AS; the close's
// compaction of books takes the cost from the last movement naming the book.
TEST_F(AmbienteChiusura, ReorganisationTiesSheetsAgain) {
    Prepara();
    Stato.NumCarnet = 2;
    Stato.Carnet[2] = Stato.Carnet[1];
    Stato.Carnet[2].NrCarnet = 2;
    Stato.Carnet[2].NrInf = 8;
    Stato.Carnet[2].NrFinale = 17;
    Stato.NumMovimenti = 3;
    Stato.Movimenti[3] = Stato.Movimenti[2];
    Stato.Movimenti[3].NrOper = 3;
    Stato.Movimenti[3].Causale = "VS";
    Stato.Assegni[6].NrMovimento = 9;    // no movement names cheque 6: it keeps its 9
    for (int m = 1; m <= 3; ++m) Scrivi(File(".MOV"), Stato.Movimenti[m], m);
    ScriviContatore(File(".MOR"), 3);
    for (int k = 1; k <= 10; ++k) Scrivi(File(".FOG"), Stato.Assegni[k], k);
    ScriviContatore(File(".NRF"), 10);
    for (const char* e : {".Ord", ".TOT", ".NRC", ".CAR", ".RIP"})
        Scrivi(File(e), RecRiporto{}, 1);

    RiordinaArchivi();
    ASSERT_TRUE(porta.messaggi.empty()) << porta.messaggi.front();
    const int carnet[] = {1, 1, 1, 1, 1, 1, 1, 2, 2, 2};
    // Cheque 1 goes to the cost movement of NrDoc "1", whatever its causale; cheque 4 to the
    // later of 2 and 3.
    const int movimento[] = {1, 0, 0, 3, 0, 9, 0, 0, 0, 0};
    for (int k = 1; k <= 10; ++k) {
        RecAssegno a = LeggiUno<RecAssegno>(File(".FOG"), k);
        EXPECT_EQ(a.NrCarnet, carnet[k - 1]) << k;
        EXPECT_EQ(a.NrMovimento, movimento[k - 1]) << k;
    }
    EXPECT_EQ(Contenuto("prog/Bak.MOV"), Contenuto(File(".MOV")));

    Stato.Movimenti[3].NrDoc = "1";
    Stato.Carnet[2].Chiuso = "S";
    ChiudiCarnet();
    EXPECT_EQ(Stato.NumCarnet, 1);
    EXPECT_EQ(LeggiUno<RecCarnet>(File(".CAR"), 1).MovCosto, 3);
}
} // namespace
