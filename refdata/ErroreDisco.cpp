#include "refdata/ErroreDisco.h"

#include "refdata/Conti.h"
#include "store/FileRecord.h"
#include "store/Guasto.h"
#include "store/Piattaforma.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <filesystem>
#include <sys/stat.h>
#include <vector>

int ErroreDisco(int numero) {
    std::string testo;
    Pulsanti pulsanti = Pulsanti::OK;
    switch (numero) {
    case 52: case 64: testo = "Nome o numero di file non valido"; break;
    case 53: testo = "Il file non esiste."; break;
    case 54:
        testo = "Modalità di file non valida.";
        pulsanti = Pulsanti::InterrompiRiprovaIgnora;
        break;
    case 55: testo = "File già aperto."; break;
    case 57:
        testo = "Errore di I/O di periferica";
        pulsanti = Pulsanti::RiprovaAnnulla;
        break;
    case 61:
        testo = "Disco pieno. Continuare?";
        pulsanti = Pulsanti::InterrompiRiprovaIgnora;
        break;
    case 62:
        testo = "Input oltre la fine del file; è stata raggiunta la fine del file e non si può "
                "continuare con la lettura.";
        break;
    case 68:
        testo = "Periferica non disponibile.";
        pulsanti = Pulsanti::RiprovaAnnulla;
        break;
    case 71:
        testo = "Disco non pronto. Inserire un dischetto";
        pulsanti = Pulsanti::RiprovaAnnulla;
        break;
    case 76: testo = "Il percorso non esiste"; break;
    default: return 3;
    }
    // The default button gives up, so that Enter on a failure that persists never loops.
    int predefinito = pulsanti == Pulsanti::RiprovaAnnulla ? 1 : 0;
    switch (Piattaforma().MsgBox(testo, "Errore Disco", Icona::Esclamazione, pulsanti,
                                 predefinito)) {
    case Risposta::Riprova: return 0;
    case Risposta::Ignora: return 1;
    default: return 2;
    }
}

void EseguiConErroreDisco(std::initializer_list<std::function<void()>> istruzioni) {
    for (const auto& istruzione : istruzioni) {
        for (;;) {
            try {
                istruzione();
                break;
            } catch (const ErroreEsecuzione& e) {
                ChiudiTutti();
                int scelta = ErroreDisco(e.numero);
                if (scelta == 0) continue;
                if (scelta == 1) break;
                Piattaforma().Clessidra(false);
                return;
            }
        }
    }
}

namespace {
// The volume chosen in Drive1; the whole tree when none is.
std::string Radice(const SceltaDirectory& s) {
    return s.Drive1.ListIndex() < 0 ? "/" : s.Drive1.Text();
}

bool Contiene(const std::string& radice, const std::string& cartella) {
    return radice == "/" || cartella == radice || cartella.rfind(radice + "/", 0) == 0;
}

std::string Genitore(const std::string& cartella) {
    std::filesystem::path p = std::filesystem::path(cartella).lexically_normal();
    // A data path relative to the current directory goes up through "..".
    if (p.is_relative() && (p == "." || p.filename() == ".."))
        return (p / "..").lexically_normal().string();
    std::string su = p.parent_path().string();
    return su.empty() ? "." : su;
}

std::string Figlia(const std::string& cartella, const std::string& nome) {
    return (std::filesystem::path(cartella) / nome).lexically_normal().string();
}

// The sub-folders of a folder by name, without regard to case.
std::vector<std::string> Sottocartelle(const std::string& cartella) {
    DIR* d = opendir(cartella.c_str());
    // A folder that isn't there is a path not found, whatever the system calls it.
    if (!d) Errore(errno == ENOENT ? 76 : NumeroDaErrno(errno));
    std::vector<std::string> nomi;
    while (const dirent* voce = readdir(d)) {
        std::string nome = voce->d_name;
        struct stat info;
        if (nome != "." && nome != ".." && stat(Figlia(cartella, nome).c_str(), &info) == 0 &&
            S_ISDIR(info.st_mode))
            nomi.push_back(nome);
    }
    closedir(d);
    std::sort(nomi.begin(), nomi.end(), [](const std::string& a, const std::string& b) {
        std::string ua = UCase(a), ub = UCase(b);
        return ua != ub ? ua < ub : a < b;
    });
    return nomi;
}

void MostraCartella(SceltaDirectory& s, const std::vector<std::string>& nomi) {
    s.Dir1.Clear();
    s.Dir1.AddItem(s.Percorso);
    if (s.Percorso != "/" && s.Percorso != Radice(s)) s.Dir1.AddItem("..");
    for (const std::string& nome : nomi) s.Dir1.AddItem(nome);
}

std::string SenzaBarra(const std::string& cartella) {
    std::string c = cartella;
    while (c.size() > 1 && c.back() == '/') c.pop_back();
    return c.empty() ? "." : c;
}

void EntraNellaRiga(SceltaDirectory& s) {
    int i = s.Dir1.ListIndex();
    if (i < 0) return;
    std::string riga = s.Dir1.List(i);
    if (riga == "..") ImpostaPercorso(s, Genitore(s.Percorso));
    else if (i > 0) ImpostaPercorso(s, Figlia(s.Percorso, riga));
}
} // namespace

void CollegaScelta(SceltaDirectory& s) {
    s.Drive1.Sorted = true;
    s.Drive1.Click = [&s] { EseguiConErroreDisco({[&s] { DirDaDrive(s); }}); };
    s.Dir1.DblClick = [&s] { EseguiConErroreDisco({[&s] { EntraNellaRiga(s); }}); };
    s.Dir1.KeyPress = [&s](int& tasto) {
        if (tasto != TastoInvio) return;
        tasto = 0;
        EseguiConErroreDisco({[&s] { EntraNellaRiga(s); }});
    };
}

void PreparaScelta(SceltaDirectory& s, const std::string& cartella) {
    s.Percorso = SenzaBarra(cartella);
    std::string volume = "/";
    s.Drive1.Clear();
    for (const std::string& unita : Piattaforma().Unita()) {
        std::string radice = SenzaBarra(unita);
        s.Drive1.AddItem(radice);
        if (Contiene(radice, s.Percorso) && radice.size() >= volume.size()) volume = radice;
    }
    s.Correnti = {{volume, s.Percorso}};
    auto& righe = s.Drive1.Righe();
    auto trovata = std::find(righe.begin(), righe.end(), volume);
    // Dir1 stands on the volume's remembered folder already: choosing it changes nothing.
    if (trovata != righe.end()) s.Drive1.SetListIndex(static_cast<int>(trovata - righe.begin()));
    std::vector<std::string> nomi;
    try {
        nomi = Sottocartelle(s.Percorso);
    } catch (const ErroreEsecuzione&) {
        // Told by the reading of the accounts, which comes next and fails through ErroreDisco.
    }
    MostraCartella(s, nomi);
}

void DirDaDrive(SceltaDirectory& s) {
    std::string radice = Radice(s);
    auto ricordata = s.Correnti.find(radice);
    std::string cartella = ricordata == s.Correnti.end() ? radice : ricordata->second;
    if (cartella != s.Percorso) ImpostaPercorso(s, cartella);
}

void ImpostaPercorso(SceltaDirectory& s, const std::string& cartella) {
    std::vector<std::string> nomi = Sottocartelle(cartella);
    bool cambiata = cartella != s.Percorso;
    s.Percorso = cartella;
    s.Correnti[Radice(s)] = cartella;
    MostraCartella(s, nomi);
    if (cambiata && s.Change) s.Change();
}

std::string ConBarra(const std::string& cartella) {
    return !cartella.empty() && cartella.back() == '/' ? cartella : cartella + "/";
}

void DirectoryScelta(const SceltaDirectory& s, Controllo& NomeFile) {
    EseguiConErroreDisco({
        [&] { NomeFile.SetText("Percorso: " + s.Percorso); },
        [] { ChiudiConto(); },
        [&] { Stato.PercorsoDati = ConBarra(s.Percorso); },
        [] { Piattaforma().Clessidra(true); },
        [] { LeggiConti(); },
        [] { Piattaforma().Clessidra(false); },
    });
}
