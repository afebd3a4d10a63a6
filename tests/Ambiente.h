#pragma once
// The one fixture of the unit tests: a fresh temporary folder, also the current directory, with a
// program directory in it, the headless port and a new application for every start; the user's
// actions on the screens, as the script driver does them; an account "123" open without a start.
#include "screen/PiattaformaSenzaSchermo.h"
#include "shell/Applicazione.h"
#include "shell/Avvio.h"
#include "store/FileRecord.h"
#include "store/Guasto.h"
#include "store/Stato.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace fs = std::filesystem;

using Byte = std::vector<unsigned char>;

// The number of the failure an action raises, 0 when it raises none.
inline int NumeroGuasto(const std::function<void()>& azione) {
    try {
        azione();
        return 0;
    } catch (const ErroreEsecuzione& e) {
        return e.numero;
    }
}

inline Byte ContenutoFile(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return Byte(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// Every file of a folder with its bytes, to compare a whole state with a later one.
inline std::map<std::string, Byte> Cartella(const fs::path& cartella) {
    std::map<std::string, Byte> file;
    for (const auto& voce : fs::directory_iterator(cartella))
        // The type from the file itself: a device bound over a file reads as a file in its folder.
        if (fs::is_regular_file(voce.path()))
            file[voce.path().filename()] = ContenutoFile(voce.path());
    return file;
}

inline void ScriviFile(const fs::path& file, const Byte& byte) {
    std::ofstream out(file, std::ios::binary);
    out.write(reinterpret_cast<const char*>(byte.data()),
              static_cast<std::streamsize>(byte.size()));
}

// One record written or read at its number, on a file opened and closed here.
template <class R> void ScriviIn(const fs::path& file, const R& record, long numero) {
    ConRecord(file.string(), R::Lunghezza, 1, [&] { ScriviRecord(record, numero, 1); });
}
template <class R> R LeggiDa(const fs::path& file, long numero) {
    R record;
    ConRecord(file.string(), R::Lunghezza, 1, [&] { LeggiRecord(record, numero, 1); });
    return record;
}

// The headless port that also keeps the form of each box.
struct PortaCheGuarda : PiattaformaSenzaSchermo {
    struct Box { std::string titolo; Icona icona; Pulsanti pulsanti; };
    std::vector<Box> box;

    Risposta MsgBox(const std::string& testo, const std::string& titolo, Icona icona,
                    Pulsanti pulsanti, int predefinito) override {
        box.push_back({titolo, icona, pulsanti});
        return PiattaformaSenzaSchermo::MsgBox(testo, titolo, icona, pulsanti, predefinito);
    }
};

// A click, through the top-level handler: false when it ended in a failure.
inline bool Clic(Controllo& c) { return EseguiEvento([&] { c.Clicca(); }); }

// Keys typed from `campo` on, each to the control that has the focus by then.
inline void Digita(Controllo& campo, const std::string& tasti) {
    EseguiEvento([&] {
        campo.SetFocus();
        for (char t : tasti) campo.schermo.Fuoco()->Digita(static_cast<unsigned char>(t));
    });
}

// A click on the first line that begins with `inizio`, and a double click after it if asked.
inline void Seleziona(Controllo& lista, const std::string& inizio, bool doppio = false) {
    const auto& righe = lista.Righe();
    auto riga = std::find_if(righe.begin(), righe.end(),
                             [&](const std::string& r) { return r.rfind(inizio, 0) == 0; });
    ASSERT_NE(riga, righe.end()) << "no line of " << lista.nome << " begins with " << inizio;
    EXPECT_TRUE(EseguiEvento([&] {
        lista.SetListIndex(static_cast<int>(riga - righe.begin()));
        if (doppio) lista.DoppioClic();
    }));
}

struct Ambiente : ::testing::Test {
    PortaCheGuarda porta;
    fs::path radice, programma, dati;
    fs::path cartellaPrima;
    std::unique_ptr<Applicazione> app;

    void SetUp() override {
        porta.oggi = DataCivile{15, 3, 2001};
        ImpostaPiattaforma(&porta);
        // Short, so that a data path under it fits the 35 characters of the stored one.
        char modello[] = "/tmp/mrd-XXXXXX";
        radice = mkdtemp(modello);
        cartellaPrima = fs::current_path();
        fs::current_path(radice);
        programma = radice / "prog";
        dati = programma / "dati";
    }

    void TearDown() override {
        app.reset();
        ChiudiTutti();
        ImpostaPiattaforma(nullptr);
        fs::current_path(cartellaPrima);
        fs::remove_all(radice);
    }

    // A start of the program as from nothing: new state, new screens.
    void Avvia() {
        app.reset();
        Stato = StatoApplicazione{};
        app = std::make_unique<Applicazione>();
        EseguiEvento([&] { AvviaProgramma(programma.string()); });
    }

    MDIForm1& Finestra() { return app->MDIForm1; }

    // The menus and buttons that only an open account enables, all on or all off.
    void ComandiConto(bool accesi, const std::string& caso = "") {
        MDIForm1& f = Finestra();
        for (Controllo* c : {&f.Files, &f.Stampe, &f.Visualizza, &f.Immissioni, &f.PulStampe,
                             &f.PulsMovimenti, &f.Manut, &f.BottCarnet, &f.Vista, &f.chiusure})
            EXPECT_EQ(c->Enabled, accesi) << caso << " " << c->nome;
    }

    // The messages shown since the last call.
    std::vector<std::string> Messaggi() { return std::exchange(porta.messaggi, {}); }

    void ScriviImposta(const RecImposta& i) { ScriviIn(programma / "Imposta.DAT", i, 1); }

    void ScriviValuta(long numero, const std::string& nome, const std::string& paese,
                      double cambio) {
        const auto n = static_cast<std::int16_t>(numero);
        ScriviIn(programma / "Valute.DAT",
                 RecValuta{.Numero = n, .Nome = nome, .Cambio = cambio, .Paese = paese}, numero);
    }

    // An account in the default data directory, as the last of a table of `numero`.
    void ScriviConto(const std::string& codice, const std::string& banca, double fido,
                     short numero = 1) {
        RecConto c;
        std::tie(c.Numero, c.CodConto, c.NomeBanca, c.Fido) = std::tie(numero, codice, banca, fido);
        ScriviIn(dati / "Conti.dat", c, numero);
        ScriviContatore((dati / "RecConti.dat").string(), numero);
    }
};

// The program started once, its first messages read.
struct AmbienteAvviato : Ambiente {
    void SetUp() override {
        Ambiente::SetUp();
        Avvia();
        Messaggi();
    }
};

inline RecMovimento Mov(int nr, const std::string& dataOper, const std::string& dataValuta,
                        double importo, const std::string& dA, const std::string& sospeso,
                        const std::string& causale = "VS", const std::string& nrDoc = "",
                        const std::string& annullato = "N") {
    return {static_cast<std::int16_t>(nr), dataOper, dataValuta, causale, importo, nrDoc,
            "movimento " + std::to_string(nr), sospeso, dA, annullato};
}

// The open account "123" in the test's folder, which is both the data and the program directory,
// with two causali and today 05/07/2001; every screen made, none loaded.
struct AmbienteConto : Ambiente {
    void SetUp() override {
        Ambiente::SetUp();
        porta.oggi = DataCivile{5, 7, 2001};
        Stato = StatoApplicazione{};
        Stato.PercorsoDati = radice.string() + "/";
        Stato.PercorsoProgramma = radice.string() + "/";
        Stato.CodContoAperto = "123";
        Stato.FormatoImporti = "#,###,###,##0.00";
        Stato.NumCausali = 2;
        Causale(1, "VS", "Versamento contanti in banca");
        Causale(2, "PR", "Prelievo");
        Stato.NumConti = 1;
        Stato.Conti[1].CodConto = "123";
        Stato.IndiceConto = 1;
        app = std::make_unique<Applicazione>();
    }

    // Causale n of the table in memory.
    static void Causale(long n, const std::string& codice, const std::string& descrizione,
                        const std::string& sospeso = "", const std::string& dA = "") {
        RecCausale& c = Stato.Causali[n];
        std::tie(c.CodCausale, c.DescCausale, c.Sospeso, c.DareAvere) =
            std::tie(codice, descrizione, sospeso, dA);
    }

    std::string File(const std::string& estensione) const { return radice / ("123" + estensione); }

    // The movements as records 1 onwards of .MOV, and their count in .MOR.
    void ScriviMovimenti(const std::vector<RecMovimento>& movimenti, short contatore = -1) {
        ConRecord(File(".MOV"), RecMovimento::Lunghezza, 1, [&] {
            for (std::size_t i = 0; i < movimenti.size(); ++i)
                ScriviRecord(movimenti[i], static_cast<long>(i + 1), 1);
        });
        ScriviContatore(File(".MOR"),
                        contatore < 0 ? static_cast<short>(movimenti.size()) : contatore);
    }

    void ScriviRiporto(double r) { ScriviIn(File(".RIP"), RecRiporto{"31/12/2000", r}, 1); }

    // Every record of a file of movements (.MOV or .Ord), to its end.
    std::vector<RecMovimento> Leggi(const std::string& estensione) const {
        auto quanti = fs::file_size(File(estensione)) / RecMovimento::Lunghezza;
        std::vector<RecMovimento> letti(quanti + 1);
        ConRecord(File(estensione), RecMovimento::Lunghezza, 1,
                  [&] { LeggiRecords(letti, 1, static_cast<long>(quanti), 1); });
        letti.erase(letti.begin());
        return letti;
    }

    // The only cheque of the account, on leaf 1.
    void ScriviAssegno(int numero, const std::string& note) {
        RecAssegno a;
        std::tie(a.NrFoglio, a.NrAssegno, a.NoteAss) = std::tuple(1, numero, note);
        ScriviIn(File(".FOG"), a, 1);
        ScriviContatore(File(".NRF"), 1);
    }

    RecTotali LeggiTotali() const { return LeggiDa<RecTotali>(File(".TOT"), 1); }

    static std::vector<int> Numeri(const std::vector<RecMovimento>& movimenti) {
        std::vector<int> numeri;
        for (const RecMovimento& m : movimenti) numeri.push_back(m.NrOper);
        return numeri;
    }

    // The numbers of the movements in a list, read back from columns 32 to 35.
    static std::vector<int> NumeriInLista(const Controllo& lista) {
        std::vector<int> numeri;
        for (const std::string& riga : lista.Righe())
            numeri.push_back(std::stoi(riga.substr(31, 4)));
        return numeri;
    }
};
