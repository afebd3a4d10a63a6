#include "screen/Schermo.h"

#include "store/Guasto.h"
#include "store/Piattaforma.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace {
std::vector<Schermo*>& registro() {
    static std::vector<Schermo*> schermi;
    return schermi;
}
Schermo* attivo = nullptr;

// The sorted lists compare lines as text without regard to case. Equal bytes are equal
// letters, so the common head of two lines is skipped eight bytes at a time; the case matters
// only from the first byte that differs.
bool Precede(const std::string& a, const std::string& b) {
    const std::size_t n = std::min(a.size(), b.size());
    std::size_t i = 0;
    for (; i + 8 <= n; i += 8) {
        std::uint64_t x, y;
        std::memcpy(&x, a.data() + i, 8);
        std::memcpy(&y, b.data() + i, 8);
        if (x != y) break;
    }
    for (; i < n; ++i) {
        auto x = static_cast<unsigned char>(a[i]), y = static_cast<unsigned char>(b[i]);
        if (x == y) continue;
        if (x >= 'A' && x <= 'Z') x += 32;
        if (y >= 'A' && y <= 'Z') y += 32;
        if (x != y) return x < y;
    }
    return a.size() < b.size();
}

// Eight bytes of a line from `da`, zeros past its end, the letters A to Z in lower case, as a
// number whose order is that of the bytes.
std::uint64_t Parola(const std::string& riga, std::size_t da) {
    std::uint64_t x = 0;
    if (da + 8 <= riga.size()) {
        // Eight whole bytes: one load, the first byte brought to the top.
        std::memcpy(&x, riga.data() + da, 8);
        if constexpr (std::endian::native == std::endian::little) x = __builtin_bswap64(x);
    } else {
        unsigned char byte[8] = {};
        if (da < riga.size())
            std::memcpy(byte, riga.data() + da, std::min<std::size_t>(8, riga.size() - da));
        for (unsigned char b : byte) x = x << 8 | b;
    }
    // All eight at once: among the bytes below 0x80, the high bit of these sums marks those
    // from "A" up and those above "Z"; the ones in between get 0x20.
    constexpr std::uint64_t Alti = 0x8080808080808080u, Bassi = 0x7F7F7F7F7F7F7F7Fu;
    std::uint64_t sette = x & Bassi;
    std::uint64_t daA = sette + 0x3F3F3F3F3F3F3F3Fu, oltreZ = sette + 0x2525252525252525u;
    return x | ((daA ^ oltreZ) & ~x & Alti) >> 2;
}

// The lines in the order of Precede, equal ones in the order they came: a refill sorts
// thousands. The sort moves the heads of the lines, their first 40 bytes as five such numbers,
// so that heads in order are lines in order; only lines with the same head are compared whole,
// which the register's lines never are, their number being within.
void Ordina(std::vector<std::string>& righe) {
    constexpr std::size_t Parole = 5;
    struct Voce {
        std::uint64_t testa[Parole];
        std::size_t posto;
    };
    std::vector<Voce> voci(righe.size());
    for (std::size_t i = 0; i < righe.size(); ++i) {
        for (std::size_t p = 0; p < Parole; ++p) voci[i].testa[p] = Parola(righe[i], 8 * p);
        voci[i].posto = i;
    }
    auto precede = [&righe](const Voce& a, const Voce& b) {
        for (std::size_t p = 0; p < Parole; ++p)
            if (a.testa[p] != b.testa[p]) return a.testa[p] < b.testa[p];
        if (Precede(righe[a.posto], righe[b.posto])) return true;
        if (Precede(righe[b.posto], righe[a.posto])) return false;
        return a.posto < b.posto;
    };
    // Lines that come nearly in order, as a register's do by date, each settle a few places
    // back by insertion; past a budget of places the rest goes to the general sort.
    std::size_t passi = 0;
    const std::size_t budget = 16 * voci.size();
    std::size_t i = 1;
    for (; i < voci.size() && passi <= budget; ++i) {
        const Voce voce = voci[i];
        std::size_t j = i;
        for (; j > 0 && precede(voce, voci[j - 1]); --j, ++passi) voci[j] = voci[j - 1];
        voci[j] = voce;
    }
    if (i < voci.size()) std::sort(voci.begin(), voci.end(), precede);
    // Each line to its place in the same vector, cycle by cycle: place k takes the line from
    // voci[k].posto, and a place filled is marked with a posto past the end.
    const std::size_t fatto = righe.size();
    for (std::size_t inizio = 0; inizio < righe.size(); ++inizio) {
        if (voci[inizio].posto == fatto) continue;
        std::string primaRiga = std::move(righe[inizio]);
        std::size_t posto = inizio;
        for (std::size_t da; (da = voci[posto].posto) != inizio; posto = da) {
            righe[posto] = std::move(righe[da]);
            voci[posto].posto = fatto;
        }
        righe[posto] = std::move(primaRiga);
        voci[posto].posto = fatto;
    }
}

bool Modificabile(TipoControllo t) {
    return t == TipoControllo::Campo || t == TipoControllo::Data || t == TipoControllo::Combo;
}

std::size_t Caratteri(const std::string& s) {
    return static_cast<std::size_t>(
        std::count_if(s.begin(), s.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

void TogliUltimoCarattere(std::string& s) {
    while (!s.empty()) {
        bool continuazione = (s.back() & 0xC0) == 0x80;
        s.pop_back();
        if (!continuazione) break;
    }
}

void AccodaCarattere(std::string& s, int c) {
    auto u = static_cast<unsigned>(c);
    if (u < 0x80) {
        s += static_cast<char>(u);
    } else if (u < 0x800) {
        s += static_cast<char>(0xC0 | (u >> 6));
        s += static_cast<char>(0x80 | (u & 0x3F));
    } else {
        s += static_cast<char>(0xE0 | (u >> 12));
        s += static_cast<char>(0x80 | ((u >> 6) & 0x3F));
        s += static_cast<char>(0x80 | (u & 0x3F));
    }
}
} // namespace

Controllo::Controllo(Schermo& s, TipoControllo t, std::string n, std::string testo, int i)
    : schermo(s), tipo(t), nome(std::move(n)), indice(i), testo_(std::move(testo)) {
    if (tipo == TipoControllo::Data && testo_.empty()) testo_ = DataVuotaMaschera;
    schermo.Registra(this);
}

void Controllo::SetText(const std::string& testo) {
    std::string nuovo = testo;
    if (tipo == TipoControllo::Data && nuovo.empty()) nuovo = DataVuotaMaschera;
    if (nuovo == testo_) return;
    testo_ = std::move(nuovo);
    if (Modificabile(tipo) && Change) Change();
}

void Controllo::SetValue(bool valore) {
    if (valore == valore_) return;
    valore_ = valore;
    if (tipo == TipoControllo::Opzione && valore) {
        for (Controllo* altro : schermo.Controlli())
            if (altro != this && altro->tipo == TipoControllo::Opzione &&
                altro->Gruppo == Gruppo)
                altro->valore_ = false;
    }
    if (tipo == TipoControllo::Opzione && !valore) return;
    if (Click) Click();
}

void Controllo::AddItem(const std::string& riga) {
    auto pos = Sorted ? std::upper_bound(righe_.begin(), righe_.end(), riga, Precede)
                      : righe_.end();
    int dove = static_cast<int>(pos - righe_.begin());
    righe_.insert(pos, riga);
    if (listIndex_ >= dove) ++listIndex_;
    ++revisione_;
}

void Controllo::AggiungiRighe(std::vector<std::string> righe) {
    if (righe.empty()) return;
    if (!Sorted) {
        righe_.insert(righe_.end(), std::make_move_iterator(righe.begin()),
                      std::make_move_iterator(righe.end()));
        ++revisione_;
        return;
    }
    // A line added later goes after the equal ones already there, as AddItem puts it.
    Ordina(righe);
    if (righe_.empty()) {
        righe_ = std::move(righe);
        ++revisione_;
        return;
    }
    if (listIndex_ >= 0) {
        const std::string& scelta = righe_[static_cast<std::size_t>(listIndex_)];
        listIndex_ += static_cast<int>(
            std::lower_bound(righe.begin(), righe.end(), scelta, Precede) - righe.begin());
    }
    std::vector<std::string> unite;
    unite.reserve(righe_.size() + righe.size());
    std::merge(std::make_move_iterator(righe_.begin()), std::make_move_iterator(righe_.end()),
               std::make_move_iterator(righe.begin()), std::make_move_iterator(righe.end()),
               std::back_inserter(unite), Precede);
    righe_ = std::move(unite);
    ++revisione_;
}

void Controllo::RemoveItem(int i) {
    if (i < 0 || i >= ListCount()) Errore(5);
    righe_.erase(righe_.begin() + i);
    if (listIndex_ == i) listIndex_ = -1;
    else if (listIndex_ > i) --listIndex_;
    ++revisione_;
}

void Controllo::Clear() {
    righe_.clear();
    listIndex_ = -1;
    if (tipo == TipoControllo::Combo) testo_.clear();
    ++revisione_;
}

std::string Controllo::List(int i) const {
    if (i < 0 || i >= ListCount()) return "";
    return righe_[static_cast<std::size_t>(i)];
}

void Controllo::SetListIndex(int i) {
    if (i < -1 || i >= ListCount()) Errore(380);
    if (i == listIndex_) return;
    listIndex_ = i;
    ++revisione_;
    if (tipo == TipoControllo::Combo) {
        std::string nuovo = List(i);
        // A choice from the lines fires Click only, as the classic combo does.
        testo_ = List(i);
    }
    if (Click) Click();
}

bool Controllo::PuoAvereFuoco() const {
    switch (tipo) {
    case TipoControllo::Etichetta:
    case TipoControllo::Menu:
    case TipoControllo::Immagine:
    case TipoControllo::Cornice: return false;
    default: return Enabled && Visible;
    }
}

bool Controllo::HaFuoco() const { return schermo.Fuoco() == this; }

void Controllo::SetFocus() {
    if (!PuoAvereFuoco()) Errore(5);
    schermo.CambiaFuoco(this);
}

void Controllo::Clicca() {
    if (!Enabled || !Visible) return;
    for (const Controllo* m = MenuPadre; m; m = m->MenuPadre)
        if (!m->Enabled || !m->Visible) return;
    if (PuoAvereFuoco()) SetFocus();
    switch (tipo) {
    case TipoControllo::Opzione: SetValue(true); break;
    case TipoControllo::Casella: SetValue(!valore_); break;
    default:
        if (Click) Click();
    }
}

void Controllo::DoppioClic() {
    if (Enabled && Visible && DblClick) DblClick();
}

void Controllo::Digita(int carattere) {
    if (carattere == TastoTab) {
        if (Controllo* prossimo = schermo.Successivo(this)) prossimo->SetFocus();
        return;
    }
    int k = carattere;
    if (KeyPress) KeyPress(k);
    if (k != 0) ModificaTesto(k);
    // The key is released over whichever control has the focus by then.
    Controllo* sotto = schermo.Fuoco() ? schermo.Fuoco() : this;
    int codice = (carattere >= 'a' && carattere <= 'z') ? carattere - 32 : carattere;
    if (sotto->KeyUp) sotto->KeyUp(codice);
}

void Controllo::ModificaTesto(int k) {
    if (!Modificabile(tipo) || !Enabled) return;
    std::string nuovo = testo_;
    if (tipo == TipoControllo::Data) {
        // The mask: a digit fills the next empty place, backspace empties the last filled one,
        // and the slashes are fixed.
        if (k == TastoBackspace) {
            for (auto i = nuovo.size(); i-- > 0;)
                if (nuovo[i] != '_' && nuovo[i] != '/') {
                    nuovo[i] = '_';
                    break;
                }
        } else if (k >= '0' && k <= '9') {
            auto i = nuovo.find('_');
            if (i == std::string::npos) return;
            nuovo[i] = static_cast<char>(k);
        } else {
            if (k != '/') Piattaforma().Beep();
            return;
        }
    } else if (k == TastoBackspace) {
        TogliUltimoCarattere(nuovo);
    } else if (k >= 32) {
        if (MaxLength > 0 && Caratteri(nuovo) >= static_cast<std::size_t>(MaxLength)) return;
        AccodaCarattere(nuovo, k);
    } else {
        return;
    }
    SetText(nuovo);
}

void Controllo::Incolla(const std::string& testo, std::size_t dove) {
    if (!Modificabile(tipo) || !Enabled) return;
    std::string tenuti;
    for (std::size_t i = 0; i < testo.size();) {
        auto byte = static_cast<unsigned char>(testo[i]);
        std::size_t lunghezza = byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
        int k = byte < 0x80 ? byte : byte < 0xE0 ? byte & 0x1F : byte & 0x0F;
        for (std::size_t j = 1; j < lunghezza && i + j < testo.size(); ++j)
            k = k << 6 | (static_cast<unsigned char>(testo[i + j]) & 0x3F);
        i += lunghezza;
        if (KeyPress) KeyPress(k);
        if (k >= 32) AccodaCarattere(tenuti, k);
    }
    // The byte where character `dove` begins, or the end.
    std::size_t posto = 0;
    for (std::size_t n = 0; n < dove && posto < testo_.size(); ++n) {
        ++posto;
        while (posto < testo_.size() && (testo_[posto] & 0xC0) == 0x80)
            ++posto;
    }
    while (MaxLength > 0 && !tenuti.empty() &&
           Caratteri(testo_) + Caratteri(tenuti) > static_cast<std::size_t>(MaxLength))
        TogliUltimoCarattere(tenuti);
    SetText(testo_.substr(0, posto) + tenuti + testo_.substr(posto));
}

Controllo::Istantanea Controllo::Fotografa() const {
    return {testo_, Enabled, Visible, valore_, righe_, listIndex_};
}

void Controllo::Ripristina(const Istantanea& i) {
    testo_ = i.testo;
    Enabled = i.enabled;
    Visible = i.visible;
    valore_ = i.valore;
    righe_ = i.righe;
    listIndex_ = i.listIndex;
    ++revisione_;
}

MatriceControlli::MatriceControlli(Schermo& s, TipoControllo t, const std::string& nome, int da,
                                   int a)
    : da_(da) {
    for (int i = da; i <= a; ++i) membri_.push_back(std::make_unique<Controllo>(s, t, nome, "", i));
}

Controllo& MatriceControlli::operator()(int i) {
    if (i < da_ || i > A()) Errore(9);
    return *membri_[static_cast<std::size_t>(i - da_)];
}

Schermo::Schermo(std::string n, std::string caption) : nome(std::move(n)), Caption(std::move(caption)) {
    registro().push_back(this);
}

Schermo::~Schermo() {
    auto& r = registro();
    r.erase(std::remove(r.begin(), r.end(), this), r.end());
    if (attivo == this) attivo = nullptr;
}

void Schermo::Carica() {
    if (stato_ != StatoSchermo::Scaricato) return;
    if (progetto_.empty()) {
        for (Controllo* c : controlli_) progetto_.push_back(c->Fotografa());
        captionProgetto_ = Caption;
    }
    stato_ = StatoSchermo::Nascosto;
    if (Load) Load();
}

void Schermo::Show(bool modale) {
    Carica();
    // Load may have unloaded the screen again.
    if (stato_ == StatoSchermo::Scaricato) return;
    stato_ = modale ? StatoSchermo::Modale : StatoSchermo::Visibile;
    if (modale && attivo != this) sotto_ = attivo;
    if (!modale) Piattaforma().MostraSchermo(*this, false);
    Attiva();
    if (!fuoco_ && Mostrato())
        if (Controllo* primo = Successivo(nullptr)) primo->SetFocus();
    if (modale && stato_ == StatoSchermo::Modale) Piattaforma().MostraSchermo(*this, true);
}

void Schermo::Hide() {
    if (stato_ == StatoSchermo::Scaricato || stato_ == StatoSchermo::Nascosto) return;
    stato_ = StatoSchermo::Nascosto;
    Ritira();
    Piattaforma().NascondiSchermo(*this);
}

void Schermo::UnloadMe() {
    if (stato_ == StatoSchermo::Scaricato) return;
    if (Unload) Unload();
    stato_ = StatoSchermo::Scaricato;
    Ritira();
    fuoco_ = nullptr;
    Caption = captionProgetto_;
    for (std::size_t i = 0; i < controlli_.size() && i < progetto_.size(); ++i)
        controlli_[i]->Ripristina(progetto_[i]);
    Piattaforma().ScaricaSchermo(*this);
}

void Schermo::Ritira() {
    // The screen that a modal one covered is in front again, without a new activation.
    if (attivo == this) attivo = sotto_ && sotto_->Mostrato() ? sotto_ : nullptr;
    sotto_ = nullptr;
}

void Schermo::Attiva() {
    if (attivo == this || !Mostrato()) return;
    attivo = this;
    if (Activate) Activate();
}

Controllo* Schermo::Trova(const std::string& n, int indice) const {
    for (Controllo* c : controlli_)
        if (c->nome == n && c->indice == indice) return c;
    return nullptr;
}

Controllo* Schermo::Successivo(const Controllo* da) const {
    auto n = controlli_.size();
    std::size_t inizio = 0;
    if (da) {
        auto it = std::find(controlli_.begin(), controlli_.end(), da);
        inizio = static_cast<std::size_t>(it - controlli_.begin()) + 1;
    }
    for (std::size_t k = 0; k < n; ++k) {
        Controllo* c = controlli_[(inizio + k) % n];
        if (c->PuoAvereFuoco()) return c;
    }
    return nullptr;
}

void Schermo::CambiaFuoco(Controllo* nuovo) {
    if (inUscita_) {
        // A lost-focus handler that sends the focus elsewhere: that is where it goes.
        fuoco_ = nuovo;
        return;
    }
    if (fuoco_ == nuovo) return;
    Controllo* vecchio = fuoco_;
    fuoco_ = nuovo;
    if (vecchio && vecchio->LostFocus) {
        inUscita_ = true;
        try {
            vecchio->LostFocus();
        } catch (...) {
            inUscita_ = false;
            throw;
        }
        inUscita_ = false;
    }
    if (fuoco_ && fuoco_->GotFocus) fuoco_->GotFocus();
}

const std::vector<Schermo*>& Schermi() { return registro(); }

Schermo* TrovaSchermo(const std::string& nome) {
    for (Schermo* s : registro())
        if (s->nome == nome) return s;
    return nullptr;
}

Controllo* TrovaControllo(const std::string& riferimento) {
    auto punto = riferimento.find('.');
    if (punto == std::string::npos) return nullptr;
    Schermo* s = TrovaSchermo(riferimento.substr(0, punto));
    if (!s) return nullptr;
    std::string resto = riferimento.substr(punto + 1);
    int indice = -1;
    auto aperta = resto.find('(');
    if (aperta != std::string::npos) {
        if (resto.back() != ')') return nullptr;
        std::string numero = resto.substr(aperta + 1, resto.size() - aperta - 2);
        if (numero.empty() || numero.find_first_not_of("0123456789") != std::string::npos)
            return nullptr;
        indice = std::stoi(numero);
        resto = resto.substr(0, aperta);
    }
    return s->Trova(resto, indice);
}

Schermo* SchermoAttivo() { return attivo; }

std::string Riferimento(const Controllo& c) {
    std::string r = c.schermo.nome + "." + c.nome;
    if (c.indice >= 0) r.append("(").append(std::to_string(c.indice)).append(")");
    return r;
}
