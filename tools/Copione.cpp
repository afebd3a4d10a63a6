#include "tools/Copione.h"

#include "screen/PiattaformaSenzaSchermo.h"
#include "screen/Schermo.h"
#include "shell/Applicazione.h"
#include "shell/Avvio.h"
#include "store/Colore.h"
#include "store/Cp1252.h"
#include "store/Date.h"
#include "store/FileRecord.h"
#include "store/Guasto.h"
#include "store/RecordAnagrafe.h"
#include "store/RecordAssegni.h"
#include "store/RecordCondizioni.h"
#include "store/RecordRegistro.h"
#include "store/Testo.h"
#include "tools/SchermiProva.h"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

namespace fs = std::filesystem;

namespace {

// Ends the run: status 0 when the program ended, 1 with its reason on a fault of the script. It
// is no std::exception, so that the program's top-level handler lets it through.
struct FineCopione {
    int stato;
    std::string motivo;
};

// The program's start: the screens are made and the main window loads.
void Avvia(std::unique_ptr<Applicazione>& applicazione, const std::string& percorsoProgramma) {
    if (!applicazione) applicazione = std::make_unique<Applicazione>();
    AvviaProgramma(percorsoProgramma);
}

// A key for one character of a typed text: the keyboard types in the program's code page.
int Tasto(const std::string& carattere) {
    unsigned char byte = 0;
    Cp1252DaUtf8(carattere, &byte, 1);
    return static_cast<int>(CarattereCp1252(byte));
}

template <class T> void ScriviCampo(std::ostream& o, const T& campo) {
    if constexpr (std::is_floating_point_v<T>) {
        char testo[32];
        auto fine = std::to_chars(testo, testo + sizeof testo, campo).ptr;
        o.write(testo, fine - testo);
    } else if constexpr (std::is_integral_v<T>) {
        o << campo;
    } else {
        o << campo.Vista();
    }
}

// The records of a file, one a line with its number and its fields in disk order between bars;
// what is left past the last whole record is told in bytes.
template <class R> void ScriviRecords(std::istream& file, std::ostream& o) {
    unsigned char byte[R::Lunghezza];
    for (long numero = 1;; ++numero) {
        file.read(reinterpret_cast<char*>(byte), R::Lunghezza);
        auto letti = static_cast<std::size_t>(file.gcount());
        if (letti < R::Lunghezza) {
            if (letti > 0) o << "+" << letti << " bytes\n";
            return;
        }
        R record;
        Decodifica(record, byte);
        o << numero << " |";
        R::Campi(record, [&o](const auto& campo) {
            ScriviCampo(o, campo);
            o << '|';
        });
        o << '\n';
    }
}

using ScrittoreRecords = void (*)(std::istream&, std::ostream&);

const std::map<std::string, ScrittoreRecords>& TipiRecord() {
    static const std::map<std::string, ScrittoreRecords> tipi = {
        {"Intero", &ScriviRecords<RecIntero>},
        {"Movimento", &ScriviRecords<RecMovimento>},
        {"Totali", &ScriviRecords<RecTotali>},
        {"Riporto", &ScriviRecords<RecRiporto>},
        {"Chiusura", &ScriviRecords<RecChiusura>},
        {"Conto", &ScriviRecords<RecConto>},
        {"Causale", &ScriviRecords<RecCausale>},
        {"Valuta", &ScriviRecords<RecValuta>},
        {"Imposta", &ScriviRecords<RecImposta>},
        {"Accesso", &ScriviRecords<RecAccesso>},
        {"Colori", &ScriviRecords<RecColori>},
        {"Carnet", &ScriviRecords<RecCarnet>},
        {"Assegno", &ScriviRecords<RecAssegno>},
        {"TassiCreditori", &ScriviRecords<RecTassiCreditori>},
        {"TassiDebitori", &ScriviRecords<RecTassiDebitori>},
        {"OpzioniCalcolo", &ScriviRecords<RecOpzioniCalcolo>},
        {"OneriPassivi", &ScriviRecords<RecOneriPassivi>},
        {"SpeseVarie", &ScriviRecords<RecSpeseVarie>},
    };
    return tipi;
}

const char* NomeStato(StatoSchermo s) {
    switch (s) {
    case StatoSchermo::Scaricato:
        return "unloaded";
    case StatoSchermo::Nascosto:
        return "hidden";
    case StatoSchermo::Visibile:
        return "shown";
    case StatoSchermo::Modale:
        return "modal";
    }
    return "unloaded";
}

// A script being read: the one given to the driver, or one it includes.
struct Sorgente {
    std::istream* testo;
    std::unique_ptr<std::ifstream> file; // an included script's own stream
    fs::path cartella;                   // where its includes are looked for
    std::string nome;                    // empty for the one given to the driver
    int numeroRiga = 0;
};

struct Interprete {
    Interprete(std::istream& copione, std::ostream& uscita, const fs::path& cartella);
    ~Interprete() { ImpostaPiattaforma(nullptr); }
    Interprete(const Interprete&) = delete;
    Interprete& operator=(const Interprete&) = delete;

    // Reads and runs the next command; false at the end of the script.
    bool EseguiProssima();

    // The arguments of the line being run, taken from the left.
    std::string Parola();
    std::string Testo();
    void FineRiga();
    [[noreturn]] void Rifiuta(const std::string& motivo) const;

    Schermo& SchermoNoto(const std::string& nome) const;
    Controllo& ControlloNoto(const std::string& riferimento) const;
    // A control the user can reach: its screen is shown and no modal screen stands before it.
    Controllo& ControlloRaggiungibile(const std::string& riferimento) const;
    int Linea(const Controllo& c, const std::string& quale) const;
    bool Fuoco(Controllo& c);
    bool Seleziona(Controllo& c, int linea);
    std::string PercorsoProgramma() const;

    void Today();
    void Program();
    void Cwd();
    void Start();
    void Demo();
    void Answer();
    void Colour();
    void Installed();
    void Menu();
    void Show();
    void Focus();
    void Type();
    void Paste();
    void File();
    void Key();
    void Set();
    void Click();
    void Select();
    void DblClick();
    void Print();
    void State();
    void Messages();
    void Paper();
    void Records();
    void Include();

    std::vector<Sorgente> sorgenti;
    std::ostream& uscita;
    PiattaformaSenzaSchermo piattaforma;
    std::unique_ptr<Applicazione> applicazione;
    std::unique_ptr<SchermiProva> prova;
    const fs::path iniziale = fs::current_path();
    std::string programma = ".";
    bool cwdCambiata = false;
    bool avviato = false;
    std::vector<Schermo*> modali;
    std::string riga;
    std::size_t pos = 0;
};

using Comando = void (Interprete::*)();

const std::map<std::string, Comando>& Comandi() {
    static const std::map<std::string, Comando> comandi = {
        {"today", &Interprete::Today},       {"program", &Interprete::Program},
        {"cwd", &Interprete::Cwd},           {"start", &Interprete::Start},
        {"demo", &Interprete::Demo},         {"answer", &Interprete::Answer},
        {"menu", &Interprete::Menu},         {"show", &Interprete::Show},
        {"focus", &Interprete::Focus},       {"type", &Interprete::Type},
        {"key", &Interprete::Key},           {"set", &Interprete::Set},
        {"click", &Interprete::Click},       {"select", &Interprete::Select},
        {"dblclick", &Interprete::DblClick}, {"print", &Interprete::Print},
        {"state", &Interprete::State},       {"messages", &Interprete::Messages},
        {"paper", &Interprete::Paper},       {"records", &Interprete::Records},
        {"include", &Interprete::Include},   {"colour", &Interprete::Colour},
        {"installed", &Interprete::Installed}, {"paste", &Interprete::Paste},
        {"file", &Interprete::File},
    };
    return comandi;
}

Interprete::Interprete(std::istream& c, std::ostream& u, const fs::path& cartella) : uscita(u) {
    sorgenti.push_back(Sorgente{&c, nullptr, cartella, "", 0});
    ImpostaPiattaforma(&piattaforma);
    // The command that showed a modal screen completes only when the lines run inside it have
    // taken the screen down.
    piattaforma.cicloModale = [this](Schermo& s) {
        modali.push_back(&s);
        while (s.Mostrato())
            if (!EseguiProssima())
                throw FineCopione{1,
                                  "the script ends with the modal screen " + s.nome + " still up"};
        modali.pop_back();
    };
}

bool Interprete::EseguiProssima() {
    std::string linea;
    for (;;) {
        if (!std::getline(*sorgenti.back().testo, linea)) {
            if (sorgenti.size() == 1) return false;
            sorgenti.pop_back();
            continue;
        }
        ++sorgenti.back().numeroRiga;
        if (!linea.empty() && linea.back() == '\r') linea.pop_back();
        auto inizio = linea.find_first_not_of(" \t");
        if (inizio == std::string::npos || linea[inizio] == '#') continue;
        riga = linea;
        pos = inizio;
        std::string nome = Parola();
        auto comando = Comandi().find(nome);
        if (comando == Comandi().end()) Rifiuta("unknown command " + nome);
        // Every command reads all its arguments before it acts: a modal screen that comes up
        // runs further lines, which take the place of this one.
        (this->*comando->second)();
        uscita.flush();
        if (piattaforma.terminato) {
            uscita << "program ended\n";
            uscita.flush();
            throw FineCopione{0, ""};
        }
        return true;
    }
}

std::string Interprete::Parola() {
    auto inizio = riga.find_first_not_of(" \t", pos);
    if (inizio == std::string::npos) Rifiuta("missing argument");
    auto fine = riga.find_first_of(" \t", inizio);
    if (fine == std::string::npos) fine = riga.size();
    pos = fine;
    return riga.substr(inizio, fine - inizio);
}

std::string Interprete::Testo() {
    auto inizio = riga.find_first_not_of(" \t", pos);
    if (inizio == std::string::npos) Rifiuta("missing text (an empty one is \"\")");
    if (riga[inizio] != '"') {
        auto fine = riga.find_last_not_of(" \t");
        pos = riga.size();
        return riga.substr(inizio, fine + 1 - inizio);
    }
    std::string testo;
    for (std::size_t i = inizio + 1; i < riga.size(); ++i) {
        char c = riga[i];
        if (c == '"') {
            pos = i + 1;
            return testo;
        }
        if (c == '\\' && i + 1 < riga.size() && (riga[i + 1] == '"' || riga[i + 1] == '\\'))
            c = riga[++i];
        testo += c;
    }
    Rifiuta("unterminated quoted text");
}

void Interprete::FineRiga() {
    auto resto = riga.find_first_not_of(" \t", pos);
    if (resto != std::string::npos) Rifiuta("unexpected \"" + riga.substr(resto) + "\"");
}

void Interprete::Rifiuta(const std::string& motivo) const {
    const Sorgente& s = sorgenti.back();
    std::string dove = s.nome.empty() ? "" : s.nome + " ";
    throw FineCopione{1, dove + "line " + std::to_string(s.numeroRiga) + ": " + motivo};
}

Schermo& Interprete::SchermoNoto(const std::string& nome) const {
    Schermo* s = TrovaSchermo(nome);
    if (!s) Rifiuta("unknown screen " + nome);
    return *s;
}

Controllo& Interprete::ControlloNoto(const std::string& riferimento) const {
    SchermoNoto(riferimento.substr(0, riferimento.find('.')));
    Controllo* c = TrovaControllo(riferimento);
    if (!c) Rifiuta("unknown control " + riferimento);
    return *c;
}

Controllo& Interprete::ControlloRaggiungibile(const std::string& riferimento) const {
    Controllo& c = ControlloNoto(riferimento);
    if (!c.schermo.Mostrato()) Rifiuta(c.schermo.nome + " is not shown");
    if (!modali.empty() && modali.back() != &c.schermo)
        Rifiuta(c.schermo.nome + " is behind the modal screen " + modali.back()->nome);
    return c;
}

int Interprete::Linea(const Controllo& c, const std::string& quale) const {
    if (c.tipo != TipoControllo::Lista && c.tipo != TipoControllo::Combo)
        Rifiuta(Riferimento(c) + " has no lines");
    if (quale.size() > 1 && quale[0] == '#' &&
        quale.find_first_not_of("0123456789", 1) == std::string::npos) {
        // More digits than a count of lines can have: no such line either.
        int n = quale.size() > 10 ? c.ListCount() : std::stoi(quale.substr(1));
        if (n >= c.ListCount()) Rifiuta("no line " + quale + " in " + Riferimento(c));
        return n;
    }
    for (int i = 0; i < c.ListCount(); ++i)
        if (c.List(i).compare(0, quale.size(), quale) == 0) return i;
    Rifiuta("no line of " + Riferimento(c) + " begins with \"" + quale + "\"");
}

// A control that can't have the focus takes no keys either, as on the screen.
bool Interprete::Fuoco(Controllo& c) {
    if (!c.PuoAvereFuoco()) return false;
    EseguiEvento([&c] { c.SetFocus(); });
    return true;
}

bool Interprete::Seleziona(Controllo& c, int linea) {
    if (!c.Enabled || !c.Visible) return false;
    EseguiEvento([&c, linea] {
        if (c.PuoAvereFuoco()) c.SetFocus();
        c.SetListIndex(linea);
    });
    return true;
}

// The program directory as the program will name it. It stays relative, so that what the
// program shows doesn't depend on where the script runs; after `cwd` it is taken from there.
std::string Interprete::PercorsoProgramma() const {
    fs::path p(programma);
    if (cwdCambiata && p.is_relative()) {
        fs::path assoluto = (iniziale / p).lexically_normal();
        fs::path relativo = assoluto.lexically_relative(fs::current_path());
        p = relativo.empty() ? assoluto : relativo;
    }
    std::string percorso = p.lexically_normal().generic_string();
    if (percorso.empty() || percorso.back() != '/') percorso += '/';
    return percorso;
}

void Interprete::Today() {
    std::string data = Parola();
    FineRiga();
    bool forma = data.size() == 10 && data[2] == '/' && data[5] == '/' &&
                 data.find_first_not_of("0123456789/") == std::string::npos;
    try {
        if (forma) GiornoCalendario(data);
    } catch (const ErroreEsecuzione&) {
        forma = false;
    }
    if (!forma) Rifiuta("not a date DD/MM/YYYY: " + data);
    piattaforma.oggi = DataCivile{std::stoi(data.substr(0, 2)), std::stoi(data.substr(3, 2)),
                                  std::stoi(data.substr(6))};
}

void Interprete::Program() {
    std::string cartella = Testo();
    FineRiga();
    if (avviato) Rifiuta("program comes before start");
    std::error_code errore;
    fs::create_directories(iniziale / cartella, errore);
    if (errore) Rifiuta("cannot make " + cartella + ": " + errore.message());
    programma = cartella;
}

void Interprete::Cwd() {
    std::string cartella = Testo();
    FineRiga();
    if (avviato) Rifiuta("cwd comes before start");
    std::error_code errore;
    fs::current_path(iniziale / cartella, errore);
    if (errore) Rifiuta("cannot enter " + cartella + ": " + errore.message());
    cwdCambiata = true;
}

void Interprete::File() {
    std::string nome = Parola();
    if (avviato) Rifiuta("file comes before start");
    fs::path percorso = iniziale / nome;
    std::error_code errore;
    fs::create_directories(nome.back() == '/' ? percorso : percorso.parent_path(), errore);
    if (errore) Rifiuta("cannot make " + nome + ": " + errore.message());
    if (nome.back() == '/') return FineRiga();
    std::ofstream file(percorso, std::ios::binary);
    while (riga.find_first_not_of(" \t", pos) != std::string::npos)
        file.put(static_cast<char>(std::stoi(Parola(), nullptr, 16)));
}

void Interprete::Start() {
    FineRiga();
    if (avviato) Rifiuta("the program has started already");
    avviato = true;
    std::string percorso = PercorsoProgramma();
    EseguiEvento([this, percorso] { Avvia(applicazione, percorso); });
}

void Interprete::Demo() {
    FineRiga();
    if (!prova) prova = std::make_unique<SchermiProva>();
}

void Interprete::Answer() {
    std::string nome = Parola();
    FineRiga();
    for (Risposta r : {Risposta::OK, Risposta::Annulla, Risposta::Interrompi, Risposta::Riprova,
                       Risposta::Ignora, Risposta::Si, Risposta::No})
        if (NomeRisposta(r) == nome) {
            piattaforma.risposte.push_back(r);
            return;
        }
    Rifiuta("unknown button " + nome);
}

void Interprete::Colour() {
    std::string scelta = Parola();
    FineRiga();
    if (scelta == "Annulla") {
        piattaforma.colori.push_back(std::nullopt);
        return;
    }
    if (scelta.size() != 7 || scelta[0] != '#' ||
        scelta.find_first_not_of("0123456789ABCDEFabcdef", 1) != std::string::npos)
        Rifiuta("not a colour #RRGGBB: " + scelta);
    auto parte = [&scelta](std::size_t da) {
        return std::stoi(scelta.substr(da, 2), nullptr, 16);
    };
    piattaforma.colori.push_back(ValoreColore({parte(1), parte(3), parte(5)}));
}

void Interprete::Installed() {
    piattaforma.programmi.push_back(Parola());
    FineRiga();
}

void Interprete::Menu() {
    std::string nome = Parola();
    FineRiga();
    if (!applicazione) Rifiuta("no main window before start");
    Controllo& voce = ControlloRaggiungibile("MDIForm1." + nome);
    if (voce.tipo != TipoControllo::Menu) Rifiuta(nome + " is no menu entry");
    EseguiEvento([&voce] { voce.Clicca(); });
}

void Interprete::Show() {
    Schermo& s = SchermoNoto(Parola());
    FineRiga();
    EseguiEvento([&s] { s.Show(); });
}

void Interprete::Focus() {
    Controllo& c = ControlloRaggiungibile(Parola());
    FineRiga();
    Fuoco(c);
}

void Interprete::Type() {
    Controllo& c = ControlloRaggiungibile(Parola());
    std::string testo = Testo();
    FineRiga();
    if (!Fuoco(c)) return;
    // Each key goes where the focus is by then: a full field may have sent it on.
    for (int i = 1; i <= Len(testo) && !piattaforma.terminato; ++i) {
        Controllo* f = c.schermo.Fuoco();
        if (!f) return;
        int tasto = Tasto(Mid(testo, i, 1));
        EseguiEvento([f, tasto] { f->Digita(tasto); });
    }
}

void Interprete::Paste() {
    Controllo& c = ControlloRaggiungibile(Parola());
    std::string testo = Testo();
    FineRiga();
    if (!Fuoco(c)) return;
    EseguiEvento([&c, &testo] { c.Incolla(testo, std::string::npos); });
}

void Interprete::Key() {
    Controllo& c = ControlloRaggiungibile(Parola());
    std::string nome = Parola();
    FineRiga();
    static const std::map<std::string, int> tasti = {{"Enter", TastoInvio},
                                                     {"Tab", TastoTab},
                                                     {"Backspace", TastoBackspace},
                                                     {"Escape", TastoEsc}};
    auto tasto = tasti.find(nome);
    if (tasto == tasti.end()) Rifiuta("unknown key " + nome);
    if (!Fuoco(c)) return;
    if (Controllo* f = c.schermo.Fuoco()) EseguiEvento([f, &tasto] { f->Digita(tasto->second); });
}

void Interprete::Set() {
    Controllo& c = ControlloRaggiungibile(Parola());
    std::string testo = Testo();
    FineRiga();
    if (!Fuoco(c)) return;
    EseguiEvento([&c, &testo] { c.SetText(testo); });
}

void Interprete::Click() {
    Controllo& c = ControlloRaggiungibile(Parola());
    FineRiga();
    EseguiEvento([&c] { c.Clicca(); });
}

void Interprete::Select() {
    Controllo& c = ControlloRaggiungibile(Parola());
    std::string quale = Testo();
    FineRiga();
    Seleziona(c, Linea(c, quale));
}

void Interprete::DblClick() {
    Controllo& c = ControlloRaggiungibile(Parola());
    if (c.tipo != TipoControllo::Lista && c.tipo != TipoControllo::Combo) {
        // Any other control with a double-click handler: focus, then the double click.
        FineRiga();
        if (!c.DblClick) Rifiuta(Riferimento(c) + " has no double click");
        if (!c.Enabled || !c.Visible) return;
        Fuoco(c);
        EseguiEvento([&c] { c.DoppioClic(); });
        return;
    }
    std::string quale = Testo();
    FineRiga();
    if (Seleziona(c, Linea(c, quale))) EseguiEvento([&c] { c.DoppioClic(); });
}

void Interprete::Print() {
    std::string cosa = Parola();
    FineRiga();
    if (cosa == "focus") {
        Schermo* davanti = modali.empty() ? SchermoAttivo() : modali.back();
        Controllo* f = davanti ? davanti->Fuoco() : nullptr;
        uscita << "focus = " << (f ? Riferimento(*f) : std::string("none")) << '\n';
        return;
    }
    if (cosa.find('.') == std::string::npos) {
        Schermo& s = SchermoNoto(cosa);
        uscita << s.nome << " = |" << s.Caption << "|\n";
        return;
    }
    const Controllo& c = ControlloNoto(cosa);
    switch (c.tipo) {
    case TipoControllo::Lista:
        uscita << Riferimento(c) << ":\n";
        break;
    case TipoControllo::Opzione:
    case TipoControllo::Casella:
        uscita << Riferimento(c) << " = |" << c.Text() << "| " << (c.Value() ? "on" : "off")
               << '\n';
        break;
    default:
        uscita << Riferimento(c) << " = |" << c.Text() << "|\n";
    }
    for (const std::string& linea : c.Righe())
        uscita << '|' << linea << "|\n";
}

void Interprete::State() {
    std::string cosa = Parola();
    FineRiga();
    if (cosa.find('.') == std::string::npos) {
        Schermo& s = SchermoNoto(cosa);
        uscita << s.nome << ' ' << NomeStato(s.Stato()) << '\n';
        return;
    }
    const Controllo& c = ControlloNoto(cosa);
    uscita << Riferimento(c) << (c.Enabled ? " enabled" : " disabled")
           << (c.Visible ? " visible" : " hidden") << '\n';
}

void Interprete::Messages() {
    FineRiga();
    for (const std::string& m : piattaforma.messaggi)
        uscita << m << '\n';
    piattaforma.messaggi.clear();
}

void Interprete::Paper() {
    FineRiga();
    const auto& carta = piattaforma.carta;
    for (std::size_t i = 0; i < carta.size();) {
        std::size_t fine = i + 1;
        while (fine < carta.size() && carta[fine] == carta[i]) ++fine;
        // The fill of a page is a run of equal lines: one line tells how many.
        if (fine - i >= 3) uscita << '{' << fine - i << " times} ";
        else fine = i + 1;
        uscita << carta[i] << '\n';
        i = fine;
    }
    piattaforma.carta.clear();
}

void Interprete::Records() {
    std::string tipo = Parola();
    std::string nome = Testo();
    FineRiga();
    auto scrittore = TipiRecord().find(tipo);
    if (scrittore == TipiRecord().end()) Rifiuta("unknown record " + tipo);
    std::ifstream file(iniziale / nome, std::ios::binary);
    if (!file) {
        uscita << nome << ": missing\n";
        return;
    }
    uscita << nome << ":\n";
    scrittore->second(file, uscita);
}

void Interprete::Include() {
    std::string nome = Testo();
    FineRiga();
    if (sorgenti.size() > 8) Rifiuta("includes nested too deep at " + nome);
    fs::path percorso = sorgenti.back().cartella / nome;
    auto file = std::make_unique<std::ifstream>(percorso);
    if (!*file) Rifiuta("cannot read " + nome);
    std::istream* testo = file.get();
    sorgenti.push_back(Sorgente{testo, std::move(file), percorso.parent_path(), nome, 0});
}

} // namespace

int EseguiCopione(std::istream& copione, std::ostream& uscita, std::ostream& errori,
                  const std::string& cartella) {
    int stato = 0;
    std::string motivo;
    {
        Interprete interprete(copione, uscita, fs::current_path() / cartella);
        try {
            while (interprete.EseguiProssima()) {
            }
        } catch (const FineCopione& fine) {
            stato = fine.stato;
            motivo = fine.motivo;
        } catch (const std::exception& e) {
            // A failure of the driver's own, outside any user event (the file system under it).
            stato = 1;
            motivo =
                "line " + std::to_string(interprete.sorgenti.back().numeroRiga) + ": " + e.what();
        }
        // The process ends next, and the application goes back to the system with it: freed
        // block by block, the tables and list lines of a big account would cost more than
        // their opening's sort. It stays reachable from App() till then.
        static_cast<void>(interprete.applicazione.release());
    }
    uscita.flush();
    if (stato != 0) errori << "marendola-script: " << motivo << '\n';
    return stato;
}
