// The accounts: Form2's keys, new and change modes, the duplicate numbers and the deletion by
// prefix; the lists; the opening through Form7 and Form10 and the closing of the account.
#include "tests/shell/Ambiente.h"

#include "refdata/Conti.h"
#include "store/Testo.h"

#include <algorithm>
#include <functional>

namespace {
std::string Blank(std::size_t n) { return std::string(n, ' '); }

struct Conto {
    std::string numero, banca;
    double fido;
};

struct ContiTest : Ambiente {
    void SetUp() override {
        Ambiente::SetUp();
        Avvia();
        Messaggi();
    }

    Form2& F2() { return app->Form2; }
    Form7& F7() { return app->Form7; }
    Form10& F10() { return app->Form10; }

    void Scegli(Controllo& voce) { EXPECT_TRUE(EseguiEvento([&] { voce.Clicca(); })); }
    void Clic(Controllo& c) { EXPECT_TRUE(EseguiEvento([&] { c.Clicca(); })); }

    // Keys typed from `campo` on, each to the control that has the focus by then.
    void Digita(Controllo& campo, const std::string& tasti) {
        EseguiEvento([&] {
            campo.SetFocus();
            for (char t : tasti) campo.schermo.Fuoco()->Digita(static_cast<unsigned char>(t));
        });
    }

    int Riga(Controllo& lista, const std::string& inizio) {
        for (int i = 0; i < lista.ListCount(); ++i)
            if (lista.List(i).rfind(inizio, 0) == 0) return i;
        ADD_FAILURE() << "no line starts with \"" << inizio << "\"";
        return -1;
    }
    void DoppioClic(Controllo& lista, const std::string& inizio) {
        int i = Riga(lista, inizio);
        EXPECT_TRUE(EseguiEvento([&] {
            lista.SetListIndex(i);
            lista.DoppioClic();
        }));
    }

    // The table of accounts written straight into the data directory.
    void Archivio(const std::vector<Conto>& conti) {
        short n = 0;
        for (const Conto& c : conti) {
            RecConto r;
            r.Numero = ++n;
            r.CodConto = c.numero;
            r.NomeBanca = c.banca;
            r.Fido = c.fido;
            ScriviIn(dati / "Conti.dat", r, n);
        }
        ScriviContatore((dati / "RecConti.dat").string(), n);
    }

    RecConto SuDisco(long numero) {
        RecConto c;
        ApriRecord((dati / "Conti.dat").string(), RecConto::Lunghezza, 1);
        LeggiRecord(c, numero, 1);
        ChiudiRecord(1);
        return c;
    }
    short ContatoreSuDisco() { return LeggiContatore((dati / "RecConti.dat").string()); }

    void Tocca(const std::string& nome) { std::ofstream(dati / nome) << "x"; }

    // A new account typed on Form2 and confirmed.
    void NuovoConto(const std::string& numero, const std::string& banca) {
        F2().CodConto.SetText(numero);
        F2().NomeBanca.SetText(banca);
        Clic(F2().AddAnItem);
    }
};

TEST_F(ContiTest, UnContoDigitatoSulForm2FiniscePaddatoSuDiscoConIlFidoInEuro) {
    Stato.Cambio = 1936.27;
    Scegli(Finestra().NuovoConto);
    ASSERT_EQ(F2().S.Stato(), StatoSchermo::Visibile);
    Digita(F2().CodConto, "12\rOrdinario\rBanca Uno\rVia Roma 1\r20100Milano\rmi"
                          "ABI\rCAB\rID\r1936270\r");
    EXPECT_EQ(F2().S.Fuoco(), &F2().AddAnItem);
    Clic(F2().AddAnItem);
    EXPECT_TRUE(Messaggi().empty());

    RecConto c = SuDisco(1);
    EXPECT_EQ(c.Numero, 1);
    EXPECT_EQ(c.CodConto.Testo(), "12" + Blank(10));
    EXPECT_EQ(c.TipoConto.Testo(), "Ordinario" + Blank(21));
    EXPECT_EQ(c.NomeBanca.Testo(), "Banca Uno" + Blank(36));
    EXPECT_EQ(c.IndBanca.Testo(), "Via Roma 1" + Blank(35));
    EXPECT_EQ(c.CapBanca.Testo(), "20100");
    EXPECT_EQ(c.LocBanca.Testo(), "Milano" + Blank(19));
    EXPECT_EQ(c.ProvBanca.Testo(), "MI");
    EXPECT_EQ(c.abi.Testo(), "ABI" + Blank(7));
    EXPECT_EQ(c.Cab.Testo(), "CAB" + Blank(7));
    EXPECT_EQ(c.id.Testo(), "ID" + Blank(8));
    // 1936270 lire at 1936,27 the euro.
    EXPECT_NEAR(c.Fido, 1000, 1e-9);
    EXPECT_EQ(ContatoreSuDisco(), 1);
    EXPECT_EQ(fs::file_size(dati / "Conti.dat"), 205u);

    // The line of a new account pads the number to 10 only.
    EXPECT_EQ(F2().ListaConti.Righe(), std::vector<std::string>{"12" + Blank(8) + " - Banca Uno"});
    for (Controllo* c : {&F2().CodConto, &F2().TipoConto, &F2().NomeBanca, &F2().IndBanca,
                         &F2().CapBanca, &F2().LocBanca, &F2().ProvBanca, &F2().abi, &F2().Fido})
        EXPECT_EQ(c->Text(), "") << c->nome;
    EXPECT_EQ(F2().Cab.Text(), "CAB");
    EXPECT_EQ(F2().id.Text(), "ID");
    EXPECT_TRUE(F2().CodConto.Enabled);
    EXPECT_EQ(F2().S.Fuoco(), &F2().CodConto);
}

TEST_F(ContiTest, TastiDeiCampiDelForm2) {
    struct Caso {
        const char* nome;
        Controllo Form2::*campo;
        std::string tasti, testo;
        int beep;
        Controllo Form2::*fuoco;
    };
    const Caso casi[] = {
        {"number drops dot and slashes", &Form2::CodConto, "1.2/3\\4", "1234", 3,
         &Form2::CodConto},
        {"twelfth character moves on", &Form2::CodConto, "123456789012", "123456789012", 0,
         &Form2::TipoConto},
        {"Enter on an empty number stays", &Form2::CodConto, "\r", "", 0, &Form2::CodConto},
        {"Enter on a number moves on", &Form2::CodConto, "7\r", "7", 0, &Form2::TipoConto},
        {"Enter on a free field moves on", &Form2::IndBanca, "x\r", "x", 0, &Form2::CapBanca},
        {"postal code keeps digits", &Form2::CapBanca, "2a0", "20", 1, &Form2::CapBanca},
        {"postal code refuses Enter", &Form2::CapBanca, "1\r", "1", 1, &Form2::CapBanca},
        {"full postal code moves on", &Form2::CapBanca, "20100", "20100", 0, &Form2::LocBanca},
        {"province upper case on leaving", &Form2::ProvBanca, "mi", "MI", 0, &Form2::abi},
        {"credit line keeps digits", &Form2::Fido, "1,5x", "15", 2, &Form2::Fido},
        {"Enter on the credit line confirms", &Form2::Fido, "5\r", "5", 0, &Form2::AddAnItem},
        {"C.A.B. waits for a full A.B.I.", &Form2::Cab, "1234567890", "1234567890", 0,
         &Form2::Cab},
    };
    Scegli(Finestra().NuovoConto);
    for (const Caso& c : casi) {
        SvuotaCampiConto(F2(), true);
        Messaggi();
        Digita(F2().*c.campo, c.tasti);
        EXPECT_EQ((F2().*c.campo).Text(), c.testo) << c.nome;
        auto messaggi = Messaggi();
        EXPECT_EQ(std::count(messaggi.begin(), messaggi.end(), "BEEP"), c.beep) << c.nome;
        EXPECT_EQ(messaggi.size(), static_cast<std::size_t>(c.beep)) << c.nome;
        EXPECT_EQ(F2().S.Fuoco(), &(F2().*c.fuoco)) << c.nome;
    }
}

TEST_F(ContiTest, CabEIdGuardanoLaLunghezzaDellAbi) {
    Scegli(Finestra().NuovoConto);
    // A full A.B.I. moves on to Cab; from there each key moves on at once.
    Digita(F2().abi, "1234567890ab");
    EXPECT_EQ(F2().Cab.Text(), "a");
    EXPECT_EQ(F2().id.Text(), "b");
    EXPECT_EQ(F2().S.Fuoco(), &F2().Fido);
}

TEST_F(ContiTest, IlNumeroVuotoNonSiLasciaColTab) {
    Scegli(Finestra().NuovoConto);
    Digita(F2().CodConto, "\t");
    EXPECT_EQ(Messaggi(), std::vector<std::string>{"[ERRORE] Campo obbligatorio -> OK"});
    EXPECT_EQ(F2().S.Fuoco(), &F2().CodConto);

    // Going to the list is no Tab.
    EseguiEvento([&] { F2().ListaConti.SetFocus(); });
    EXPECT_TRUE(Messaggi().empty());
    EXPECT_EQ(F2().S.Fuoco(), &F2().ListaConti);
}

TEST_F(ContiTest, EntrandoNellaLocalitaIlCapVuotoDiventaZero) {
    Scegli(Finestra().NuovoConto);
    EseguiEvento([&] { F2().LocBanca.SetFocus(); });
    EXPECT_EQ(F2().CapBanca.Text(), "0");
}

TEST_F(ContiTest, ConfermaSenzaNumero) {
    Scegli(Finestra().NuovoConto);
    F2().NomeBanca.SetText("Banca");
    Clic(F2().AddAnItem);
    EXPECT_EQ(Messaggi(),
              (std::vector<std::string>{"BEEP", "[ERRORE] Nr. di conto obbligatorio -> OK"}));
    EXPECT_EQ(F2().S.Fuoco(), &F2().CodConto);
    EXPECT_EQ(ContatoreSuDisco(), 0);
}

TEST_F(ContiTest, NumeriDoppiConfrontatiSenzaIBlankADestra) {
    const std::string rifiuto = "[ERRORE] Si è inserito un numero di conto già esistente, i "
                                "dati inseriti non possono essere salvati. Cambiare il nr. di "
                                "conto e riprovare. -> OK";
    struct Caso {
        std::string numero;
        bool accettato;
    };
    // In order: each accepted number joins the table for the rows after it.
    const Caso casi[] = {{"12", true}, {"12", false}, {"12 ", false}, {" 12", true},
                         {"123", true}, {"123  ", false}};
    Scegli(Finestra().NuovoConto);
    short attesi = 0;
    for (const Caso& c : casi) {
        NuovoConto(c.numero, "Banca");
        if (c.accettato) ++attesi;
        auto messaggi = Messaggi();
        EXPECT_EQ(messaggi, c.accettato ? std::vector<std::string>{}
                                        : std::vector<std::string>{rifiuto})
            << '"' << c.numero << '"';
        EXPECT_EQ(Stato.NumConti, attesi) << '"' << c.numero << '"';
        EXPECT_EQ(F2().CodConto.Text(), "");
        EXPECT_EQ(F2().S.Fuoco(), &F2().CodConto);
    }
    EXPECT_EQ(ContatoreSuDisco(), 3);
    EXPECT_EQ(SuDisco(2).CodConto.Testo(), " 12" + Blank(9));
}

TEST_F(ContiTest, ModificaDiUnContoSceltoDallaLista) {
    Archivio({{"12", "Banca Uno", 1000}, {"34", "Banca Due", 2500}});
    Scegli(Finestra().NuovoConto);
    ASSERT_EQ(F2().ListaConti.ListCount(), 2);
    DoppioClic(F2().ListaConti, "34");

    EXPECT_FALSE(F2().CodConto.Enabled);
    EXPECT_TRUE(F2().Del.Enabled);
    EXPECT_EQ(Stato.IndiceConto, 2);
    EXPECT_EQ(F2().CodConto.Text(), "34" + Blank(10));
    EXPECT_EQ(F2().NomeBanca.Text(), "Banca Due" + Blank(36));
    EXPECT_EQ(F2().Fido.Text(), "2.500");

    F2().NomeBanca.SetText("Banca Tre");
    F2().Cab.SetText("CAB");
    Clic(F2().AddAnItem);
    EXPECT_TRUE(Messaggi().empty());

    RecConto c = SuDisco(2);
    EXPECT_EQ(c.Numero, 2);
    EXPECT_EQ(c.CodConto.Testo(), "34" + Blank(10));
    EXPECT_EQ(c.NomeBanca.Testo(), "Banca Tre" + Blank(36));
    EXPECT_EQ(c.Cab.Testo(), "CAB" + Blank(7));
    EXPECT_DOUBLE_EQ(c.Fido, 2500);
    EXPECT_EQ(ContatoreSuDisco(), 2);
    EXPECT_EQ(Stato.NumConti, 2);
    EXPECT_EQ(fs::file_size(dati / "Conti.dat"), 2 * 205u);

    // The lists come back whole, in the layout of a full read.
    EXPECT_EQ(F2().ListaConti.Righe(),
              (std::vector<std::string>{"12" + Blank(10) + " - Banca Uno" + Blank(36),
                                        "34" + Blank(10) + " - Banca Tre" + Blank(36)}));
    for (Controllo* f : {&F2().CodConto, &F2().NomeBanca, &F2().Cab, &F2().id, &F2().Fido})
        EXPECT_EQ(f->Text(), "") << f->nome;
    EXPECT_TRUE(F2().CodConto.Enabled);
    EXPECT_EQ(Stato.IndiceConto, 0);
}

TEST_F(ContiTest, UnContoAppenaAggiuntoSiScegliePureDallaSuaRigaCorta) {
    Archivio({{"12", "Banca Uno", 0}});
    Scegli(Finestra().NuovoConto);
    NuovoConto("7", "Banca Sette");
    NuovoConto("12345678901", "Banca Lunga");
    DoppioClic(F2().ListaConti, "7 ");
    EXPECT_EQ(Stato.IndiceConto, 2);
    EXPECT_EQ(Trim(F2().NomeBanca.Text()), "Banca Sette");
    Clic(F2().CLR);
    DoppioClic(F2().ListaConti, "12345678901 - ");
    EXPECT_EQ(Stato.IndiceConto, 3);
    EXPECT_EQ(Trim(F2().NomeBanca.Text()), "Banca Lunga");
}

TEST_F(ContiTest, EliminaImmissioneLasciaCabEIdGestioneContoNo) {
    Scegli(Finestra().NuovoConto);
    for (Controllo* c : {&F2().CodConto, &F2().NomeBanca, &F2().abi, &F2().Cab, &F2().id})
        c->SetText("X");
    Clic(F2().CLR);
    EXPECT_EQ(F2().CodConto.Text(), "");
    EXPECT_EQ(F2().abi.Text(), "");
    EXPECT_EQ(F2().Cab.Text(), "X");
    EXPECT_EQ(F2().id.Text(), "X");

    Scegli(Finestra().NuovoConto);
    EXPECT_EQ(F2().Cab.Text(), "");
    EXPECT_EQ(F2().id.Text(), "");
}

TEST_F(ContiTest, CancellareIl12CancellaAncheIFileDel123) {
    Archivio({{"12", "Banca Uno", 0}, {"123", "Banca Due", 0}, {"5", "Banca Tre", 0}});
    for (const char* nome : {"12.MOV", "12.TOT", "123.MOV", "123.FOG", "5.MOV"}) Tocca(nome);
    fs::create_directory(dati / "12vecchi");
    Scegli(Finestra().NuovoConto);
    DoppioClic(F2().ListaConti, "12 ");
    porta.risposte = {Risposta::OK};
    Clic(F2().Del);
    EXPECT_EQ(Messaggi(), std::vector<std::string>{
                              "[AVVERTIMENTO!] Attenzione il conto selezionato verrà cancellato "
                              "tutti i dati verranno irrimediabilmente persi. Vuoi continuare ? "
                              "-> OK"});

    for (const char* via : {"12.MOV", "12.TOT", "123.MOV", "123.FOG"})
        EXPECT_FALSE(fs::exists(dati / via)) << via;
    EXPECT_TRUE(fs::exists(dati / "5.MOV"));
    EXPECT_TRUE(fs::is_directory(dati / "12vecchi"));

    // Renumbered from 1; the old last record stays behind the count.
    EXPECT_EQ(ContatoreSuDisco(), 2);
    EXPECT_EQ(fs::file_size(dati / "Conti.dat"), 3 * 205u);
    EXPECT_EQ(SuDisco(1).Numero, 1);
    EXPECT_EQ(Trim(SuDisco(1).CodConto), "123");
    EXPECT_EQ(SuDisco(2).Numero, 2);
    EXPECT_EQ(Trim(SuDisco(2).CodConto), "5");
    EXPECT_EQ(Trim(SuDisco(3).CodConto), "5");
    EXPECT_EQ(Stato.NumConti, 2);
    EXPECT_EQ(F2().ListaConti.ListCount(), 2);
    EXPECT_EQ(F2().ListaConti.List(0).substr(0, 12), "123" + Blank(9));

    EXPECT_TRUE(F2().CodConto.Enabled);
    EXPECT_TRUE(F2().Del.Enabled);
    EXPECT_EQ(Stato.IndiceConto, 0);
}

TEST_F(ContiTest, CancellazioneAnnullataORifiutata) {
    const std::string domanda = "[AVVERTIMENTO!] Attenzione il conto selezionato verrà cancellato"
                                " tutti i dati verranno irrimediabilmente persi. Vuoi "
                                "continuare ? -> ";
    const std::string rifiuto = "[attenzione] Non si può cancellare il conto sul quale si "
                                "lavora, devi prima chiudere il conto -> OK";
    struct Caso {
        const char* nome;
        std::function<void(ContiTest&)> prima;
        Risposta risposta;
        std::vector<std::string> messaggi;
    };
    const Caso casi[] = {
        {"Cancel", [](ContiTest&) {}, Risposta::Annulla, {domanda + "Annulla"}},
        {"Escape from the selection first",
         [](ContiTest& t) { t.Clic(t.F2().CLR); }, Risposta::OK, {domanda + "OK", rifiuto}},
        {"the number as the panel's caption",
         [](ContiTest& t) { t.Finestra().Codice.SetText("12" + Blank(10)); }, Risposta::OK,
         {domanda + "OK", rifiuto}},
    };
    Archivio({{"12", "Banca Uno", 0}});
    Tocca("12.MOV");
    Scegli(Finestra().NuovoConto);
    for (const Caso& c : casi) {
        DoppioClic(F2().ListaConti, "12");
        c.prima(*this);
        Messaggi();
        porta.risposte = {c.risposta};
        Clic(F2().Del);
        EXPECT_EQ(Messaggi(), c.messaggi) << c.nome;
        EXPECT_TRUE(fs::exists(dati / "12.MOV")) << c.nome;
        EXPECT_EQ(ContatoreSuDisco(), 1) << c.nome;
        EXPECT_EQ(F2().CodConto.Text(), "") << c.nome;
        EXPECT_TRUE(F2().CodConto.Enabled) << c.nome;
    }
}

TEST_F(ContiTest, ListeInOrdineDiTestoLaTabellaInOrdineDiFile) {
    Archivio({{"b2", "B", 0}, {"A1", "A", 0}, {"10", "D", 0}, {"9", "C", 0}});
    Scegli(Finestra().ApriConto);
    std::vector<std::string> numeri;
    for (const std::string& riga : F7().List1.Righe()) numeri.push_back(Trim(riga.substr(0, 12)));
    EXPECT_EQ(numeri, (std::vector<std::string>{"10", "9", "A1", "b2"}));
    EXPECT_EQ(F7().List1.List(0), "10" + Blank(10) + " - D" + Blank(44));
    EXPECT_EQ(Trim(Stato.Conti[1].CodConto), "b2");
    EXPECT_EQ(Trim(Stato.Conti[4].CodConto), "9");
}

TEST_F(ContiTest, ApertoDaForm7EForm10ChiusoDalMenu) {
    Archivio({{"12", "Banca Uno", 1000}});
    Scegli(Finestra().ApriConto);
    ASSERT_EQ(F7().S.Stato(), StatoSchermo::Visibile);
    EXPECT_FALSE(F7().OK.Enabled);
    EseguiEvento([&] { F7().List1.SetListIndex(0); });
    EXPECT_TRUE(F7().OK.Enabled);
    Clic(F7().OK);

    ASSERT_EQ(F10().S.Stato(), StatoSchermo::Visibile);
    EXPECT_EQ(F10().CodConto.Text(), "12");
    EXPECT_EQ(F10().NomeBanca.Text(), "Banca Uno");
    EXPECT_EQ(F10().Fido.Text(), "1.000");
    EXPECT_TRUE(F10().Saldi.Enabled);
    EXPECT_EQ(F10().S.Fuoco(), &F10().Saldi);
    EXPECT_EQ(Stato.IndiceConto, 1);

    Clic(F10().Saldi);
    EXPECT_TRUE(Messaggi().empty());
    MDIForm1& f = Finestra();
    EXPECT_EQ(f.Codice.Text(), dati.string() + "/12");
    EXPECT_EQ(f.DescConto.Text(), "Banca Uno");
    EXPECT_EQ(f.Saldi(2).Text(), "1.000");
    EXPECT_TRUE(f.Stampe.Enabled);
    EXPECT_TRUE(f.PulsMovimenti.Enabled);
    EXPECT_EQ(app->Form9.S.Stato(), StatoSchermo::Visibile);
    EXPECT_EQ(Stato.ContoAperto, 1);
    EXPECT_EQ(Trim(Stato.CodContoAperto), "12");
    EXPECT_EQ(F7().S.Stato(), StatoSchermo::Scaricato);
    EXPECT_EQ(F10().S.Stato(), StatoSchermo::Scaricato);
    EXPECT_TRUE(fs::exists(dati / "12.MOV"));

    Scegli(f.close);
    for (Controllo* c : {&f.UltimaData, &f.AssMano, &f.AssFuori, &f.DescConto})
        EXPECT_EQ(c->Text(), "") << c->nome;
    for (int i = 0; i <= 5; ++i) EXPECT_EQ(f.Saldi(i).Text(), "") << i;
    EXPECT_EQ(f.Codice.Text(), dati.string() + "/");
    for (Controllo* c : {&f.Files, &f.Stampe, &f.Visualizza, &f.Immissioni, &f.PulStampe,
                         &f.PulsMovimenti, &f.Manut, &f.BottCarnet, &f.Vista, &f.chiusure})
        EXPECT_FALSE(c->Enabled) << c->nome;
    EXPECT_EQ(app->Form9.S.Stato(), StatoSchermo::Scaricato);
    EXPECT_EQ(Stato.ContoAperto, 0);
    EXPECT_EQ(Stato.IndiceConto, 0);
    EXPECT_EQ(Trim(Stato.CodContoAperto), "");
    EXPECT_EQ(Stato.PercorsoDati, dati.string() + "/");
}

TEST_F(ContiTest, Form7ChiudeSubitoIlContoApertoEUscitaNonNeApreAltri) {
    Archivio({{"12", "Banca Uno", 0}});
    Scegli(Finestra().ApriConto);
    DoppioClic(F7().List1, "12");
    Clic(F10().Saldi);
    ASSERT_EQ(Stato.ContoAperto, 1);

    Scegli(Finestra().Command3D2);
    EXPECT_EQ(Stato.ContoAperto, 0);
    EXPECT_FALSE(Finestra().Stampe.Enabled);
    EXPECT_EQ(app->Form9.S.Stato(), StatoSchermo::Scaricato);
    DoppioClic(F7().List1, "12");
    EXPECT_EQ(F10().S.Stato(), StatoSchermo::Visibile);
    Clic(F7().Command2);
    EXPECT_EQ(F7().S.Stato(), StatoSchermo::Scaricato);
    EXPECT_EQ(F10().S.Stato(), StatoSchermo::Scaricato);
    EXPECT_EQ(Stato.ContoAperto, 0);
    EXPECT_EQ(Finestra().Codice.Text(), dati.string() + "/");
}

TEST_F(ContiTest, LaSchedaSaltataOAbbandonataNonApreIlConto) {
    Archivio({{"12", "Banca Uno", 0}});
    Scegli(Finestra().ApriConto);
    DoppioClic(F7().List1, "12");
    Stato.FlagOperazione = 1;
    Clic(F10().Saldi);
    EXPECT_EQ(Stato.FlagOperazione, 0);
    EXPECT_EQ(F10().S.Stato(), StatoSchermo::Scaricato);
    EXPECT_EQ(F7().S.Stato(), StatoSchermo::Visibile);
    EXPECT_EQ(Stato.ContoAperto, 0);
    EXPECT_FALSE(Finestra().Stampe.Enabled);

    DoppioClic(F7().List1, "12");
    Stato.FlagOperazione = 1;
    Clic(F10().Command3);
    EXPECT_EQ(Stato.FlagOperazione, 0);
    EXPECT_EQ(F10().S.Stato(), StatoSchermo::Scaricato);
    EXPECT_EQ(Stato.ContoAperto, 0);
}

TEST_F(ContiTest, LaSchedaFiltraITastiComeIlForm2EArchivioTornaAlForm7) {
    Archivio({{"12", "Banca Uno", 0}});
    Scegli(Finestra().ApriConto);
    DoppioClic(F7().List1, "12");
    struct Caso {
        Controllo Form10::*campo;
        std::string tasti, testo;
        int beep;
    };
    // Enter is no key of the card: it beeps on the two fields of digits.
    const Caso casi[] = {{&Form10::CodConto, "/3.\\", "123", 3},
                         {&Form10::CapBanca, "4a\r", "4", 2},
                         {&Form10::Fido, "5,\r", "5", 2},
                         {&Form10::LocBanca, "a.b", "a.b", 0}};
    for (const Caso& c : casi) {
        (F10().*c.campo).SetText(c.campo == &Form10::CodConto ? "12" : "");
        Messaggi();
        Digita(F10().*c.campo, c.tasti);
        EXPECT_EQ((F10().*c.campo).Text(), c.testo) << (F10().*c.campo).nome;
        EXPECT_EQ(Messaggi().size(), static_cast<std::size_t>(c.beep)) << (F10().*c.campo).nome;
    }

    Clic(F10().selezione);
    EXPECT_EQ(F10().S.Stato(), StatoSchermo::Scaricato);
    EXPECT_EQ(F7().S.Stato(), StatoSchermo::Visibile);
    EXPECT_EQ(SchermoAttivo(), &F7().S);
}

TEST_F(ContiTest, CentoContiSonoIlLimiteDellaTabella) {
    std::vector<Conto> cento;
    for (int i = 1; i <= 100; ++i) cento.push_back({std::to_string(i), "Banca", 0});
    Archivio(cento);
    Scegli(Finestra().NuovoConto);
    F2().CodConto.SetText("101");
    EXPECT_FALSE(EseguiEvento([&] { F2().AddAnItem.Clicca(); }));
    EXPECT_EQ(Messaggi(), std::vector<std::string>{
                              "FAILURE 9 Indice non compreso nell'intervallo"});
    EXPECT_EQ(ContatoreSuDisco(), 100);
}
} // namespace
