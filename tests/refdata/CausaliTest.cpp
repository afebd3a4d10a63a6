// The causali: the duplicate test of Form6 and what ManutCaus writes, which the program ends on.
#include "tests/Ambiente.h"

#include "store/Testo.h"

namespace {
struct CausaliTest : AmbienteAvviato {
    Form6& F6() { return app->Form6; }

    // A causale for entrate, not suspended, with no cost: the opposite of the seeded ones.
    void Conferma(const std::string& codice, const std::string& descrizione) {
        F6().S.Show();
        F6().CodCausale.SetText(codice);
        F6().DescCausale.SetText(descrizione);
        F6().SospesoSiNo(1).Clicca();
        F6().DarAver(3).Clicca();
        Clic(F6().OK);
    }
    RecCausale SuDisco(long n) { return LeggiDa<RecCausale>(programma / "Causali.DAT", n); }
};

// The typed text against the trimmed codes: "VS " and "VSXYZW" slip through, the latter stored
// as "VSXYZ" again.
TEST_F(CausaliTest, IlDoppioneSiRiconosceSoloSulTestoEsattoDelCodice) {
    Conferma("VS", "Versamento");
    Conferma("VSXYZ", "Versamento lungo");
    Messaggi();
    const std::pair<const char*, bool> casi[] = {{"VS", true},   {"GC", true},  {" VS", false},
                                                 {"VS ", false}, {"vs", false}, {"VSXYZW", false}};
    short attese = 5;
    for (const auto& [digitato, rifiutato] : casi) {
        SCOPED_TRACE(std::string("\"") + digitato + "\"");
        Conferma(digitato, "Ancora");
        attese += !rifiutato;
        EXPECT_EQ(Messaggi(), rifiutato ? std::vector<std::string>{"[ERRORE] Nr di causale già "
                                                                   "presente -> OK"}
                                        : std::vector<std::string>{});
        EXPECT_EQ(LeggiContatore((programma / "RecCausa.dat").string()), attese);
        EXPECT_EQ(F6().ElencoCausali.ListCount(), attese);
    }
    EXPECT_EQ(SuDisco(9).CodCausale.Testo(), "VSXYZ");
}

// Each line of List1, in its sorted order, writes every slot of its code at the line's record,
// the last slot last; each record keeps its old number and the old ones stay behind the count.
TEST_F(CausaliTest, LaManutenzioneScriveLeRigheScelteNelLoroOrdineEChiudeIlProgramma) {
    for (const auto& [codice, descrizione] : {std::pair{"ZZ", "Varie"},
                                              {"MA", "Mance"},
                                              {"BO", "Bonifico"},
                                              {"VS", "Versamento"},
                                              {"VS ", "Versamento bis"}})
        Conferma(codice, descrizione);
    const Byte prima = ContenutoFile(programma / "Causali.DAT");
    ManutCaus& m = app->ManutCaus;
    m.S.Show();
    for (const char* riga : {"ZZ ", "BO ", "MA ", "GC ", "VS    - Versamento bis", "VS "})
        Seleziona(m.ElencoCausali, riga, true);
    Messaggi();
    porta.risposte = {Risposta::OK};
    Clic(m.Saldi);
    EXPECT_EQ(Messaggi(), (std::vector<std::string>{
                              "[ATTENZIONE!] L'operazione modificherà l'archivio delle causali. "
                              "Vuoi continuare? -> OK",
                              "[] CHIUSURA PROGRAMMA -> OK"}));
    EXPECT_TRUE(porta.terminato);
    EXPECT_EQ(LeggiContatore((programma / "RecCausa.dat").string()), 6);
    const char* attese[] = {"6 BO|Bonifico|NE0",       "3 GC|GIROCONTO|SU1",      "5 MA|Mance|NE0",
                            "8 VS|Versamento bis|NE0", "8 VS|Versamento bis|NE0", "4 ZZ|Varie|NE0"};
    for (long n = 1; n <= 6; ++n) {
        const RecCausale c = SuDisco(n);
        EXPECT_EQ(std::to_string(c.Numero) + " " + RTrim(c.CodCausale) + "|" +
                      RTrim(c.DescCausale) + "|" + c.Sospeso.Testo() + c.DareAvere.Testo() +
                      c.SoggettoCosto.Testo(),
                  attese[n - 1]);
    }
    const Byte dopo = ContenutoFile(programma / "Causali.DAT");
    ASSERT_EQ(dopo.size(), prima.size());
    EXPECT_TRUE(std::equal(dopo.begin() + 6 * 35, dopo.end(), prima.begin() + 6 * 35));
}
} // namespace
