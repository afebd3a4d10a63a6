// The accounts: Form2's keys, new and change modes, the duplicate numbers and the deletion by
// prefix; the lists; the opening through Form7 and Form10 and the closing of the account.
#include "tests/Ambiente.h"

#include "refdata/Conti.h"
#include "store/Testo.h"


namespace {
std::string Blank(std::size_t n) { return std::string(n, ' '); }

// The text fields of an account, right-trimmed, between bars.
std::string Campi(const RecConto& c) {
    std::string s;
    for (const std::string& campo : {c.CodConto.Testo(), c.TipoConto.Testo(), c.NomeBanca.Testo(),
                                     c.IndBanca.Testo(), c.CapBanca.Testo(), c.LocBanca.Testo(),
                                     c.ProvBanca.Testo(), c.abi.Testo(), c.Cab.Testo(),
                                     c.id.Testo()})
        s += RTrim(campo) + "|";
    return s;
}

const std::string kDomandaCancella = "[AVVERTIMENTO!] Attenzione il conto selezionato verrà "
                                     "cancellato tutti i dati verranno irrimediabilmente persi. "
                                     "Vuoi continuare ? -> ";

struct ContiTest : AmbienteAvviato {
    Form2& F2() { return app->Form2; }

    // The table of accounts written straight into the data directory.
    void Archivio(const std::vector<std::string>& numeri) {
        short n = 0;
        for (const std::string& numero : numeri) ScriviConto(numero, "Banca " + numero, 0, ++n);
    }
    RecConto SuDisco(long numero) { return LeggiDa<RecConto>(dati / "Conti.dat", numero); }
    short ContatoreSuDisco() { return LeggiContatore((dati / "RecConti.dat").string()); }

    void NuovoConto(const std::string& numero) {
        F2().CodConto.SetText(numero);
        F2().NomeBanca.SetText("Banca");
        Clic(F2().AddAnItem);
    }
};

TEST_F(ContiTest, UnContoDigitatoSulForm2FiniscePaddatoSuDiscoConIlFidoInEuro) {
    Stato.Cambio = 1936.27;
    Clic(Finestra().NuovoConto);
    Digita(F2().CodConto, "12\rOrdinario\rBanca Uno\rVia Roma 1\r20100Milano\rmi"
                          "ABI\rCAB\rID\r1936270\r");
    EXPECT_EQ(F2().S.Fuoco(), &F2().AddAnItem);
    Clic(F2().AddAnItem);
    EXPECT_TRUE(Messaggi().empty());

    RecConto c = SuDisco(1);
    EXPECT_EQ(c.Numero, 1);
    EXPECT_EQ(Campi(c), "12|Ordinario|Banca Uno|Via Roma 1|20100|Milano|MI|ABI|CAB|ID|");
    // 1936270 lire at 1936,27 the euro.
    EXPECT_NEAR(c.Fido, 1000, 1e-9);
    EXPECT_EQ(ContatoreSuDisco(), 1);
    // The line of a new account pads the number to 10 only; Cab and id stay on the screen.
    EXPECT_EQ(F2().ListaConti.Righe(), std::vector<std::string>{"12" + Blank(8) + " - Banca Uno"});
    EXPECT_EQ(F2().TipoConto.Text() + F2().abi.Text() + F2().Cab.Text() + F2().id.Text(), "CABID");
}

TEST_F(ContiTest, IlCapVuotoDiventaZero) {
    Clic(Finestra().NuovoConto);
    EseguiEvento([&] { F2().LocBanca.SetFocus(); });
    EXPECT_EQ(F2().CapBanca.Text(), "0");
}

TEST_F(ContiTest, NumeriDoppiConfrontatiSenzaIBlankADestra) {
    const std::string rifiuto = "[ERRORE] Si è inserito un numero di conto già esistente, i "
                                "dati inseriti non possono essere salvati. Cambiare il nr. di "
                                "conto e riprovare. -> OK";
    // In order: each accepted number joins the table for the rows after it.
    const std::pair<std::string, bool> casi[] = {{"12", true},  {"12", false},  {"12 ", false},
                                                 {" 12", true}, {"123", true}, {"123  ", false}};
    Clic(Finestra().NuovoConto);
    short attesi = 0;
    for (const auto& [numero, accettato] : casi) {
        NuovoConto(numero);
        attesi += accettato;
        EXPECT_EQ(Messaggi(), accettato ? std::vector<std::string>{}
                                        : std::vector<std::string>{rifiuto})
            << '"' << numero << '"';
        EXPECT_EQ(Stato.NumConti, attesi) << '"' << numero << '"';
        EXPECT_EQ(F2().CodConto.Text(), "");
    }
    EXPECT_EQ(ContatoreSuDisco(), 3);
    EXPECT_EQ(SuDisco(2).CodConto.Testo(), " 12" + Blank(9));
}

TEST_F(ContiTest, CancellareIl12CancellaAncheIFileDel123) {
    Archivio({"12", "123", "5"});
    for (const char* nome : {"12.MOV", "12.TOT", "123.MOV", "123.FOG", "5.MOV"})
        ScriviFile(dati / nome, {});
    fs::create_directory(dati / "12vecchi");
    Clic(Finestra().NuovoConto);
    Seleziona(F2().ListaConti, "12 ", true);
    porta.risposte = {Risposta::OK};
    Clic(F2().Del);
    EXPECT_EQ(Messaggi(), std::vector<std::string>{kDomandaCancella + "OK"});

    for (const char* via : {"12.MOV", "12.TOT", "123.MOV", "123.FOG"})
        EXPECT_FALSE(fs::exists(dati / via)) << via;
    EXPECT_TRUE(fs::exists(dati / "5.MOV"));
    EXPECT_TRUE(fs::is_directory(dati / "12vecchi"));

    // Renumbered from 1; the old last record stays behind the count.
    EXPECT_EQ(ContatoreSuDisco(), 2);
    EXPECT_EQ(fs::file_size(dati / "Conti.dat"), 3 * 205u);
    const char* attesi[] = {"", "1|123", "2|5", "3|5"};
    for (long n : {1, 2, 3})
        EXPECT_EQ(std::to_string(SuDisco(n).Numero) + "|" + Trim(SuDisco(n).CodConto), attesi[n]);
    EXPECT_EQ(Stato.NumConti, 2);
    EXPECT_EQ(F2().ListaConti.ListCount(), 2);
    EXPECT_EQ(Stato.IndiceConto, 0);
}

// With no account selected, or with the caption of the panel equal to the 12 characters of the
// number, the deletion is refused after the question.
TEST_F(ContiTest, CancellazioneRifiutata) {
    const std::string rifiuto = "[attenzione] Non si può cancellare il conto sul quale si "
                                "lavora, devi prima chiudere il conto -> OK";
    Archivio({"12"});
    ScriviFile(dati / "12.MOV", {});
    Clic(Finestra().NuovoConto);
    for (bool clr : {true, false}) {
        Seleziona(F2().ListaConti, "12", true);
        if (clr) Clic(F2().CLR);
        else Finestra().Codice.SetText("12" + Blank(10));
        Messaggi();
        porta.risposte = {Risposta::OK};
        Clic(F2().Del);
        EXPECT_EQ(Messaggi(), (std::vector<std::string>{kDomandaCancella + "OK", rifiuto})) << clr;
        EXPECT_TRUE(fs::exists(dati / "12.MOV")) << clr;
        EXPECT_EQ(ContatoreSuDisco(), 1) << clr;
    }
}
} // namespace
