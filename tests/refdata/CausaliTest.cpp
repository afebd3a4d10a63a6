// The causali: the duplicate test of Form6 and the pruning of ManutCaus.
#include "tests/Ambiente.h"

#include "store/Testo.h"

namespace {
// Entrate, not suspended, no cost: the opposite of every protected causale.
struct Scelte {
    bool entrate = true, sospeso = false, costo = false;
};

// Code, description and the three flags "S"/"N", "E"/"U", "1"/"0", right-trimmed.
std::string Tracciato(const RecCausale& c) {
    return RTrim(c.CodCausale) + "|" + RTrim(c.DescCausale) + "|" + c.Sospeso.Testo() +
           c.DareAvere.Testo() + c.SoggettoCosto.Testo();
}

struct CausaliTest : AmbienteAvviato {
    Form6& F6() { return app->Form6; }

    // A first start again, on an empty program directory; then, if asked, a start on a table
    // that the user emptied.
    void RipartiDaZero(bool senzaCausali = false) {
        app.reset();
        fs::remove_all(programma);
        Avvia();
        if (senzaCausali) {
            ScriviContatore((programma / "RecCausa.dat").string(), 0);
            Avvia();
        }
        Messaggi();
    }

    void Compila(const std::string& codice, const std::string& descrizione, Scelte s = {}) {
        F6().CodCausale.SetText(codice);
        F6().DescCausale.SetText(descrizione);
        F6().DarAver(s.entrate ? 0 : 1).Clicca();
        F6().SospesoSiNo(s.sospeso ? 0 : 1).Clicca();
        F6().DarAver(s.costo ? 2 : 3).Clicca();
    }
    void Conferma(const std::string& codice, const std::string& descrizione) {
        F6().S.Show();
        Compila(codice, descrizione);
        Clic(F6().OK);
    }

    RecCausale SuDisco(long n) { return LeggiDa<RecCausale>(programma / "Causali.DAT", n); }
    short ContatoreSuDisco() { return LeggiContatore((programma / "RecCausa.dat").string()); }
};

TEST_F(CausaliTest, IlDoppioneSiRiconosceSoloSulTestoEsattoDelCodice) {
    // "VS " and "VSXYZW" slip through and store "VS" and "VSXYZ" again.
    const std::pair<const char*, bool> casi[] = {{"VS", true},   {"GC", true},  {" VS", false},
                                                 {"VS ", false}, {"vs", false}, {"VSXYZW", false}};
    for (const auto& [digitato, rifiutato] : casi) {
        SCOPED_TRACE(std::string("\"") + digitato + "\"");
        RipartiDaZero();
        Conferma("VS", "Versamento");
        Conferma("VSXYZ", "Versamento lungo");
        Messaggi();
        Conferma(digitato, "Ancora");
        if (rifiutato) {
            EXPECT_EQ(Messaggi(),
                      std::vector<std::string>{"[ERRORE] Nr di causale già presente -> OK"});
            EXPECT_EQ(fs::file_size(programma / "Causali.DAT"), 5u * 35);
        } else {
            EXPECT_TRUE(Messaggi().empty());
            EXPECT_EQ(SuDisco(6).CodCausale.Testo(), Giustifica(digitato, 5));
        }
        EXPECT_EQ(ContatoreSuDisco(), rifiutato ? 5 : 6);
        EXPECT_EQ(F6().ElencoCausali.ListCount(), ContatoreSuDisco());
    }
}

struct ManutCausTest : CausaliTest {
    ManutCaus& M() { return app->ManutCaus; }
    void Sposta(Controllo& lista, const std::string& inizio) { Seleziona(lista, inizio, true); }
    void Registra(Risposta risposta) {
        porta.risposte = {risposta};
        Clic(M().Saldi);
    }
};

TEST_F(ManutCausTest, LaConfermaScriveLeCausaliScelteNellOrdineDellElencoEChiudeIlProgramma) {
    Conferma("ZZ", "Varie");
    Conferma("MA", "Mance");
    Conferma("BO", "Bonifico");
    const Byte prima = ContenutoFile(programma / "Causali.DAT");
    M().S.Show();
    for (const char* codice : {"ZZ ", "BO ", "MA ", "GC "}) Sposta(M().ElencoCausali, codice);
    Messaggi();

    Registra(Risposta::OK);
    EXPECT_EQ(Messaggi(), (std::vector<std::string>{
                              "[ATTENZIONE!] L'operazione modificherà l'archivio delle causali. "
                              "Vuoi continuare? -> OK",
                              "[] CHIUSURA PROGRAMMA -> OK"}));
    EXPECT_TRUE(porta.terminato);
    EXPECT_EQ(ContatoreSuDisco(), 4);
    // The order of List1, each record keeping its old number.
    const char* attese[] = {"", "6 BO|Bonifico|NE0", "3 GC|GIROCONTO|SU1", "5 MA|Mance|NE0",
                            "4 ZZ|Varie|NE0"};
    for (long n = 1; n <= 4; ++n)
        EXPECT_EQ(std::to_string(SuDisco(n).Numero) + " " + Tracciato(SuDisco(n)), attese[n]);
    // Behind the count the old records stay as they were.
    const Byte dopo = ContenutoFile(programma / "Causali.DAT");
    ASSERT_EQ(dopo.size(), prima.size());
    EXPECT_TRUE(std::equal(dopo.begin() + 4 * 35, dopo.end(), prima.begin() + 4 * 35));
}

TEST_F(ManutCausTest, UnElencoVuotoLasciaZeroCausaliEIlFileComEra) {
    const Byte prima = ContenutoFile(programma / "Causali.DAT");
    M().S.Show();
    Registra(Risposta::OK);
    EXPECT_TRUE(porta.terminato);
    EXPECT_EQ(ContatoreSuDisco(), 0);
    EXPECT_EQ(ContenutoFile(programma / "Causali.DAT"), prima);
    // The next start isn't a first start: the seeded causali don't come back.
    Avvia();
    EXPECT_EQ(Stato.NumCausali, 0);
    EXPECT_EQ(ContatoreSuDisco(), 0);
    EXPECT_EQ(app->Form1.S.Stato(), StatoSchermo::Scaricato);
}

TEST_F(ManutCausTest, DueRigheConLoStessoCodiceScrivonoDueVolteLaStessaCausale) {
    Conferma("VS", "Versamento");
    Conferma("VS ", "Versamento bis");
    M().S.Show();
    Sposta(M().ElencoCausali, "VS    - Versamento bis");
    Sposta(M().ElencoCausali, "VS ");
    Registra(Risposta::OK);
    EXPECT_EQ(ContatoreSuDisco(), 2);
    // Each line writes every slot of its code, the last one last.
    EXPECT_EQ(Tracciato(SuDisco(1)), "VS|Versamento bis|NE0");
    EXPECT_EQ(Tracciato(SuDisco(2)), "VS|Versamento bis|NE0");
}
} // namespace
