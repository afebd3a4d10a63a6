// The causali: Form6's new and change modes with the protected codes and the duplicate test,
// the picker FORM12 and its callers, and the pruning of ManutCaus.
#include "tests/shell/Ambiente.h"

#include "store/Testo.h"

namespace {
struct Scelte {
    bool entrate, sospeso, costo;
};
constexpr Scelte EntrateNonSospesaSenzaCosto{true, false, false};

struct CausaliTest : Ambiente {
    void SetUp() override {
        Ambiente::SetUp();
        Avvia();
        Messaggi();
    }

    Form6& F6() { return app->Form6; }

    // A first start again, on an empty program directory.
    void RipartiDaZero() {
        app.reset();
        fs::remove_all(programma);
        Avvia();
        Messaggi();
    }

    // A start on a table that the user emptied: no causale at all.
    void AvviaSenzaCausali() {
        ScriviContatore((programma / "RecCausa.dat").string(), 0);
        Avvia();
        Messaggi();
    }

    void Compila(const std::string& codice, const std::string& descrizione, Scelte s) {
        F6().CodCausale.SetText(codice);
        F6().DescCausale.SetText(descrizione);
        F6().DarAver(s.entrate ? 0 : 1).Clicca();
        F6().SospesoSiNo(s.sospeso ? 0 : 1).Clicca();
        F6().DarAver(s.costo ? 2 : 3).Clicca();
    }

    void Conferma(const std::string& codice, const std::string& descrizione, Scelte s) {
        F6().S.Show();
        Compila(codice, descrizione, s);
        EseguiEvento([&] { F6().OK.Clicca(); });
    }

    void Seleziona(Controllo& lista, const std::string& inizio) {
        for (int i = 0; i < lista.ListCount(); ++i)
            if (lista.List(i).rfind(inizio, 0) == 0) {
                EseguiEvento([&] { lista.SetListIndex(i); });
                return;
            }
        FAIL() << "no line starts with " << inizio;
    }

    RecCausale SuDisco(long numero) {
        RecCausale c;
        ApriRecord((programma / "Causali.DAT").string(), RecCausale::Lunghezza, 1);
        LeggiRecord(c, numero, 1);
        ChiudiRecord(1);
        return c;
    }
    short ContatoreSuDisco() { return LeggiContatore((programma / "RecCausa.dat").string()); }
    std::uintmax_t RecordSuDisco() {
        return fs::file_size(programma / "Causali.DAT") / RecCausale::Lunghezza;
    }
};

// Code, description and the three flags "S"/"N", "E"/"U", "1"/"0" as one text for the checks.
std::string Tracciato(const RecCausale& c) {
    return c.CodCausale.Testo() + "|" + c.DescCausale.Testo() + "|" + c.Sospeso.Testo() +
           c.DareAvere.Testo() + c.SoggettoCosto.Testo();
}

std::string Tracciato(const std::string& codice, const std::string& descrizione,
                      const std::string& flag) {
    return Giustifica(codice, 5) + "|" + Giustifica(descrizione, 25) + "|" + flag;
}

struct CasoProtetto {
    const char* nome;
    const char* digitato;
    const char *codice, *descrizione, *flag; // the record stored
};

TEST_F(CausaliTest, ICodiciProtettiImponganoILoroValoriSoloSeScrittiEsatti) {
    // Typed with options that contradict the protected values: Entrate, not suspended, no cost.
    const CasoProtetto casi[] = {
        {"AS", "AS", "AS", "ASSEGNO", "SU1"},
        {"CA", "CA", "CA", "CARNET", "SU1"},
        {"GC", "GC", "GC", "GIROCONTO", "SU1"},
        {"lower case is an ordinary code", "gc", "gc", "scritta a mano", "NE0"},
        {"a blank after it too", "GC ", "GC", "scritta a mano", "NE0"},
    };
    for (const CasoProtetto& caso : casi) {
        SCOPED_TRACE(caso.nome);
        RipartiDaZero();
        AvviaSenzaCausali();
        Conferma(caso.digitato, "scritta a mano", EntrateNonSospesaSenzaCosto);
        EXPECT_TRUE(Messaggi().empty());
        EXPECT_EQ(Tracciato(SuDisco(1)), Tracciato(caso.codice, caso.descrizione, caso.flag));
        EXPECT_EQ(SuDisco(1).Numero, 1);
        EXPECT_EQ(ContatoreSuDisco(), 1);
        EXPECT_EQ(Stato.NumCausali, 1);
    }
}

TEST_F(CausaliTest, LaNuovaCausaleVaInFondoAllaTabellaEInOrdineNegliElenchi) {
    app->FORM12.S.Carica();
    Conferma("BO", "Bonifico ricevuto", EntrateNonSospesaSenzaCosto);

    EXPECT_EQ(Tracciato(SuDisco(4)), Tracciato("BO", "Bonifico ricevuto", "NE0"));
    EXPECT_EQ(SuDisco(4).Numero, 4);
    EXPECT_EQ(ContatoreSuDisco(), 4);
    EXPECT_EQ(F6().CodCausale.Text(), "");
    EXPECT_EQ(F6().DescCausale.Text(), "");
    const std::vector<std::string> righe = {
        "AS     - ASSEGNO                  ",
        "BO     - Bonifico ricevuto        ",
        "CA     - CARNET                   ",
        "GC     - GIROCONTO                ",
    };
    EXPECT_EQ(F6().ElencoCausali.Righe(), righe);
    EXPECT_EQ(app->FORM12.List1.Righe(), righe);
}

struct CasoDoppione {
    const char* nome;
    const char* digitato;
    bool rifiutato;
};

TEST_F(CausaliTest, IlDoppioneSiRiconosceSoloSulTestoEsattoDelCodice) {
    const CasoDoppione casi[] = {
        {"the same code", "VS", true},
        {"a protected code already seeded", "GC", true},
        {"a code with a leading blank is another code", " VS", false},
        {"a trailing blank slips through and stores VS again", "VS ", false},
        {"another case is another code", "vs", false},
        {"six characters slip through and store VSXYZ again", "VSXYZW", false},
    };
    for (const CasoDoppione& caso : casi) {
        SCOPED_TRACE(caso.nome);
        RipartiDaZero();
        Conferma("VS", "Versamento", EntrateNonSospesaSenzaCosto);
        Conferma("VSXYZ", "Versamento lungo", EntrateNonSospesaSenzaCosto);
        Messaggi();

        Conferma(caso.digitato, "Ancora", EntrateNonSospesaSenzaCosto);
        if (caso.rifiutato) {
            EXPECT_EQ(Messaggi(),
                      std::vector<std::string>{"[ERRORE] Nr di causale già presente -> OK"});
            EXPECT_EQ(Stato.NumCausali, 5);
            EXPECT_EQ(ContatoreSuDisco(), 5);
            EXPECT_EQ(RecordSuDisco(), 5u);
            EXPECT_EQ(F6().CodCausale.Text(), "");
            EXPECT_EQ(F6().DescCausale.Text(), "");
            EXPECT_TRUE(F6().CodCausale.HaFuoco());
        } else {
            EXPECT_TRUE(Messaggi().empty());
            EXPECT_EQ(ContatoreSuDisco(), 6);
            EXPECT_EQ(SuDisco(6).CodCausale.Testo(), Giustifica(caso.digitato, 5));
        }
        EXPECT_EQ(F6().ElencoCausali.ListCount(), ContatoreSuDisco());
    }
}

TEST_F(CausaliTest, CodiceEDescrizioneSonoObbligatori) {
    const std::pair<const char*, const char*> casi[] = {{"", "Descrizione"}, {"XX", ""}, {"", ""}};
    for (const auto& [codice, descrizione] : casi) {
        SCOPED_TRACE(std::string(codice) + "/" + descrizione);
        Conferma(codice, descrizione, EntrateNonSospesaSenzaCosto);
        EXPECT_EQ(Messaggi(),
                  (std::vector<std::string>{
                      "BEEP", "[ERRORE] Campo codice e descrizione obbligatori -> OK"}));
        EXPECT_EQ(F6().CodCausale.Text(), "");
        EXPECT_EQ(F6().DescCausale.Text(), descrizione);
        EXPECT_TRUE(F6().CodCausale.HaFuoco());
        EXPECT_EQ(Stato.NumCausali, 3);
        EXPECT_EQ(ContatoreSuDisco(), 3);
    }
}

TEST_F(CausaliTest, UnClicSullElencoPortaLaCausaleNeiCampiELaModificaLaRiscriveAlSuoPosto) {
    Conferma("BO", "Bonifico", EntrateNonSospesaSenzaCosto);
    Conferma("VS", "Versamento", EntrateNonSospesaSenzaCosto);
    Seleziona(F6().ElencoCausali, "BO ");
    EXPECT_EQ(Stato.IndiceCausale, 4);
    EXPECT_EQ(F6().CodCausale.Text(), "BO");
    EXPECT_EQ(F6().DescCausale.Text(), "Bonifico");
    EXPECT_TRUE(F6().DarAver(0).Value());
    EXPECT_TRUE(F6().SospesoSiNo(1).Value());
    EXPECT_TRUE(F6().DarAver(3).Value());

    // A change takes no duplicate test: the code of a causale in use is accepted.
    Compila("VS", "Versamento bis", Scelte{false, true, true});
    EseguiEvento([&] { F6().OK.Clicca(); });
    EXPECT_TRUE(Messaggi().empty());
    EXPECT_EQ(Tracciato(SuDisco(4)), Tracciato("VS", "Versamento bis", "SU1"));
    EXPECT_EQ(SuDisco(4).Numero, 4);
    EXPECT_EQ(ContatoreSuDisco(), 5);
    EXPECT_EQ(RecordSuDisco(), 5u);
    EXPECT_EQ(Stato.NumCausali, 5);
    EXPECT_EQ(Stato.IndiceCausale, 4);
    EXPECT_EQ(F6().ElencoCausali.Righe(), (std::vector<std::string>{
                                              "AS     - ASSEGNO                  ",
                                              "CA     - CARNET                   ",
                                              "GC     - GIROCONTO                ",
                                              "VS     - Versamento               ",
                                              "VS     - Versamento bis           ",
                                          }));
}

TEST_F(CausaliTest, LaModificaDiUnaCausaleProtettaLaRiportaAiSuoiValori) {
    F6().S.Show();
    Seleziona(F6().ElencoCausali, "GC ");
    Compila("GC", "Trasferimento", EntrateNonSospesaSenzaCosto);
    EseguiEvento([&] { F6().OK.Clicca(); });
    EXPECT_EQ(Tracciato(SuDisco(3)), Tracciato("GC", "GIROCONTO", "SU1"));
    EXPECT_EQ(ContatoreSuDisco(), 3);
}

TEST_F(CausaliTest, PulisciEIlRitornoInPrimoPianoRiportanoAllaNuovaCausale) {
    F6().S.Show();
    Seleziona(F6().ElencoCausali, "CA ");
    EseguiEvento([&] { F6().pulisci.Clicca(); });
    EXPECT_EQ(Stato.IndiceCausale, 0);
    EXPECT_EQ(F6().ElencoCausali.ListIndex(), -1);
    EXPECT_EQ(F6().CodCausale.Text(), "");
    EXPECT_TRUE(F6().CodCausale.HaFuoco());
    // With the index back to 0, the same fields make a new causale, not a change of CA.
    Conferma("PR", "Prelievo", EntrateNonSospesaSenzaCosto);
    EXPECT_EQ(Tracciato(SuDisco(2)), Tracciato("CA", "CARNET", "SU1"));
    EXPECT_EQ(ContatoreSuDisco(), 4);
}

TEST_F(CausaliTest, IlCodiceDiCinqueCaratteriPassaAllaDescrizioneELaDescrizionePienaAConferma) {
    F6().S.Show();
    for (char c : std::string("BONIF"))
        F6().CodCausale.Digita(c);
    EXPECT_TRUE(F6().DescCausale.HaFuoco());
    for (char c : std::string(25, 'x'))
        F6().DescCausale.Digita(c);
    EXPECT_TRUE(F6().OK.HaFuoco());
}

// Stand-ins for the callers not built yet, with the fields the picker fills.
struct ChiamanteProva {
    Schermo S;
    Controllo Causale{S, TipoControllo::Campo, "Causale"};
    Controllo DescrCausale{S, TipoControllo::Etichetta, "DescrCausale"};
    Controllo Sospeso{S, TipoControllo::Campo, "Sospeso"};
    Controllo D_A{S, TipoControllo::Etichetta, "D_A"};
    Controllo IMPORTO{S, TipoControllo::Campo, "IMPORTO"};
    explicit ChiamanteProva(const std::string& nome) : S(nome, nome) {}
};

struct CasoChiamante {
    short chiamante;
    const char* schermo;
    const char* fuoco;
    std::string sospeso; // what the caller's Sospeso shows after the pick
    short chiamanteDopo;
};

TEST_F(CausaliTest, LaSceltaDaFORM12RiempieICampiDelChiamante) {
    std::vector<std::unique_ptr<ChiamanteProva>> sostituti;
    for (const char* nome : {"Form4", "Form20"})
        if (!TrovaSchermo(nome)) sostituti.push_back(std::make_unique<ChiamanteProva>(nome));
    Conferma("BO", "Bonifico ricevuto", EntrateNonSospesaSenzaCosto);

    const CasoChiamante casi[] = {
        {0, "Form9", "IMPORTO", "N", 0},
        {1, "Form4", "IMPORTO", "", 0},
        {2, "Form20", "Sospeso", "", 2}, // Form20's number is never reset
        {7, "Form9", "IMPORTO", "N", 7},
    };
    for (const CasoChiamante& caso : casi) {
        SCOPED_TRACE(caso.schermo);
        Schermo* chiamante = TrovaSchermo(caso.schermo);
        for (const char* campo : {"Causale", "DescrCausale", "Sospeso", "D_A"})
            chiamante->Trova(campo)->SetText("");
        Stato.ChiamanteCausale = caso.chiamante;
        FORM12& picker = app->FORM12;
        picker.S.Show(true);
        Seleziona(picker.List1, "BO ");
        EXPECT_TRUE(EseguiEvento([&] { picker.OK.Clicca(); }));

        EXPECT_EQ(chiamante->Trova("Causale")->Text(), "BO");
        EXPECT_EQ(chiamante->Trova("DescrCausale")->Text(), "Bonifico ricevuto");
        EXPECT_EQ(chiamante->Trova("Sospeso")->Text(), caso.sospeso);
        EXPECT_EQ(chiamante->Trova("D_A")->Text(), "E");
        EXPECT_EQ(chiamante->Fuoco(), chiamante->Trova(caso.fuoco));
        EXPECT_EQ(Stato.ChiamanteCausale, caso.chiamanteDopo);
        EXPECT_FALSE(picker.S.Mostrato());
        EXPECT_EQ(picker.List1.ListIndex(), -1);
    }
}

TEST_F(CausaliTest, IlDoppioClicSullElencoDiFORM12SceglieComeOK) {
    Stato.ChiamanteCausale = 0;
    app->FORM12.S.Show(true);
    Seleziona(app->FORM12.List1, "GC ");
    EseguiEvento([&] { app->FORM12.List1.DoppioClic(); });
    EXPECT_EQ(app->Form9.Causale.Text(), "GC");
    EXPECT_EQ(app->Form9.D_A.Text(), "U");
    EXPECT_FALSE(app->FORM12.S.Mostrato());
}

struct ManutCausTest : CausaliTest {
    ManutCaus& M() { return app->ManutCaus; }

    void Sposta(Controllo& lista, const std::string& inizio) {
        Seleziona(lista, inizio);
        EseguiEvento([&] { lista.DoppioClic(); });
    }

    void Registra(Risposta risposta) {
        porta.risposte.push_back(risposta);
        EseguiEvento([&] { M().Saldi.Clicca(); });
    }
};

TEST_F(ManutCausTest, AllAperturaTutteLeCausaliSonoInArchivioENessunaDaRegistrare) {
    Conferma("BO", "Bonifico", EntrateNonSospesaSenzaCosto);
    M().S.Show();
    EXPECT_EQ(M().ElencoCausali.Righe(), (std::vector<std::string>{
                                             "AS    - ASSEGNO                  ",
                                             "BO    - Bonifico                 ",
                                             "CA    - CARNET                   ",
                                             "GC    - GIROCONTO                ",
                                         }));
    EXPECT_EQ(M().List1.ListCount(), 0);

    Sposta(M().ElencoCausali, "CA ");
    Sposta(M().ElencoCausali, "AS ");
    EXPECT_EQ(M().List1.Righe(), (std::vector<std::string>{
                                     "AS    - ASSEGNO                  ",
                                     "CA    - CARNET                   ",
                                 }));
    Sposta(M().List1, "CA ");
    EXPECT_EQ(M().ElencoCausali.ListCount(), 3);
    EXPECT_EQ(M().List1.ListCount(), 1);
}

TEST_F(ManutCausTest, LaConfermaScriveLeCausaliScelteNellOrdineDellElencoEChiudeIlProgramma) {
    Conferma("ZZ", "Varie", EntrateNonSospesaSenzaCosto);
    Conferma("MA", "Mance", EntrateNonSospesaSenzaCosto);
    Conferma("BO", "Bonifico", EntrateNonSospesaSenzaCosto);
    const Byte prima = ContenutoFile(programma / "Causali.DAT");
    M().S.Show();
    for (const char* codice : {"ZZ ", "BO ", "MA ", "GC "})
        Sposta(M().ElencoCausali, codice);
    Messaggi();

    Registra(Risposta::OK);
    EXPECT_EQ(Messaggi(),
              (std::vector<std::string>{"[ATTENZIONE!] L'operazione modificherà l'archivio delle "
                                        "causali. Vuoi continuare? -> OK",
                                        "[] CHIUSURA PROGRAMMA -> OK"}));
    EXPECT_TRUE(porta.terminato);
    EXPECT_EQ(ContatoreSuDisco(), 4);
    // The order of List1, each record keeping its old number.
    EXPECT_EQ(Tracciato(SuDisco(1)), Tracciato("BO", "Bonifico", "NE0"));
    EXPECT_EQ(SuDisco(1).Numero, 6);
    EXPECT_EQ(Tracciato(SuDisco(2)), Tracciato("GC", "GIROCONTO", "SU1"));
    EXPECT_EQ(SuDisco(2).Numero, 3);
    EXPECT_EQ(Tracciato(SuDisco(3)), Tracciato("MA", "Mance", "NE0"));
    EXPECT_EQ(SuDisco(3).Numero, 5);
    EXPECT_EQ(Tracciato(SuDisco(4)), Tracciato("ZZ", "Varie", "NE0"));
    EXPECT_EQ(SuDisco(4).Numero, 4);
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
    porta.terminato = false;
    Avvia();
    EXPECT_EQ(Stato.NumCausali, 0);
    EXPECT_EQ(ContatoreSuDisco(), 0);
    EXPECT_EQ(app->Form1.S.Stato(), StatoSchermo::Scaricato);
}

TEST_F(ManutCausTest, SenzaOKNonCambiaNulla) {
    const Byte prima = ContenutoFile(programma / "Causali.DAT");
    M().S.Show();
    Sposta(M().ElencoCausali, "AS ");
    Messaggi();
    // No answer queued: the box takes its default, Cancel.
    EseguiEvento([&] { M().Saldi.Clicca(); });
    EXPECT_EQ(Messaggi(), std::vector<std::string>{
                              "[ATTENZIONE!] L'operazione modificherà l'archivio delle causali. "
                              "Vuoi continuare? -> Annulla"});
    EXPECT_FALSE(porta.terminato);
    EXPECT_EQ(ContatoreSuDisco(), 3);
    EXPECT_EQ(ContenutoFile(programma / "Causali.DAT"), prima);
}

TEST_F(ManutCausTest, DueRigheConLoStessoCodiceScrivonoDueVolteLaStessaCausale) {
    Conferma("VS", "Versamento", EntrateNonSospesaSenzaCosto);
    Conferma("VS ", "Versamento bis", EntrateNonSospesaSenzaCosto);
    M().S.Show();
    Sposta(M().ElencoCausali, "VS    - Versamento bis");
    Sposta(M().ElencoCausali, "VS ");
    Registra(Risposta::OK);
    EXPECT_EQ(ContatoreSuDisco(), 2);
    // Each line writes every slot of its code, the last one last.
    EXPECT_EQ(Tracciato(SuDisco(1)), Tracciato("VS", "Versamento bis", "NE0"));
    EXPECT_EQ(Tracciato(SuDisco(2)), Tracciato("VS", "Versamento bis", "NE0"));
}

TEST_F(CausaliTest, IComandiDellaFinestraPrincipaleApronoLeLoroSchermate) {
    const std::pair<Controllo MDIForm1::*, const char*> casi[] = {
        {&MDIForm1::GestCaus, "Form6"}, {&MDIForm1::Command3D4, "Form6"},
        {&MDIForm1::gestval, "Form25"}, {&MDIForm1::SSCommand1, "Form25"},
        {&MDIForm1::CVV, "Convertore"},
    };
    for (const auto& [comando, schermo] : casi) {
        SCOPED_TRACE(schermo);
        TrovaSchermo(schermo)->UnloadMe();
        EseguiEvento([&] { (Finestra().*comando).Clicca(); });
        EXPECT_EQ(TrovaSchermo(schermo)->Stato(), StatoSchermo::Visibile);
    }
}
} // namespace
