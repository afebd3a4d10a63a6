#pragma once
// Screens as plain models: a screen holds its controls and its event handlers and knows nothing
// of any toolkit. The Qt side (ui/) and the script driver (tools/) both work on these models.
//
// A screen model is a struct with a `Schermo` member first and its controls after it, each
// control naming the screen it belongs to; the order of declaration is the tab order:
//
//     struct Form7 {
//         Schermo S{"Form7", "Apri conto"};
//         Controllo Lista{S, TipoControllo::Lista, "List1"};
//         Controllo OK{S, TipoControllo::Pulsante, "OK", "OK"};
//     };
//
// Handlers are std::function members set by the screen's own code (OK.Click = [this] {...}).
#include <functional>
#include <memory>
#include <string>
#include <vector>

struct Schermo;

enum class TipoControllo {
    Campo,      // text field
    Data,       // masked date field "##/##/####", empty reads "__/__/____"
    Etichetta,  // label or panel: a caption
    Pulsante,   // command button
    Menu,       // a menu or a menu entry of the main window
    Opzione,    // option button: one of a group is on
    Casella,    // check box
    Lista,      // list box
    Combo,      // combo box: a text and its lines
    Immagine,   // picture: Text is the path of the image file
    Cornice,    // frame: a caption around other controls
};

enum class StatoSchermo { Scaricato, Nascosto, Visibile, Modale };

// Key codes as the classic runtime passes them.
inline constexpr int TastoBackspace = 8, TastoTab = 9, TastoInvio = 13, TastoEsc = 27;

inline constexpr const char* DataVuotaMaschera = "__/__/____";

struct Controllo {
    Controllo(Schermo& schermo, TipoControllo tipo, std::string nome, std::string testo = "",
              int indice = -1);
    Controllo(const Controllo&) = delete;
    Controllo& operator=(const Controllo&) = delete;

    Schermo& schermo;
    const TipoControllo tipo;
    const std::string nome;
    const int indice;   // place in a control array, -1 for a single control

    bool Enabled = true;
    bool Visible = true;
    int MaxLength = 0;          // 0: no limit
    std::string ToolTipText;
    bool Sorted = false;        // lists and combos: lines kept as case-insensitive sorted text
    std::string Gruppo;         // options: the group in which one is on ("" = the whole screen)
    Controllo* MenuPadre = nullptr;   // a menu entry: the menu or submenu that holds it
    // Lists: background and text colour (store/Colore.h); -1 keeps the desktop's own.
    double BackColor = -1, ForeColor = -1;
    // Fields: the pattern (store/Formato.h) in which the view shows the typed amount while the
    // field hasn't the focus; "" shows the text as it is.
    std::string Formato;

    std::function<void()> Click, DblClick, Change, GotFocus, LostFocus;
    std::function<void(int& KeyAscii)> KeyPress;   // setting KeyAscii to 0 drops the key
    std::function<void(int KeyCode)> KeyUp;

    // Text of a field or combo, caption of a label, button, menu, option, check box or frame.
    const std::string& Text() const { return testo_; }
    // Replaces the text; a field or combo whose text changes fires Change. A date field given ""
    // becomes the empty mask.
    void SetText(const std::string& testo);

    // Options and check boxes. Turning an option on turns the others of its group off; a change
    // fires Click, as the classic controls do.
    bool Value() const { return valore_; }
    void SetValue(bool valore);

    // Lists and combos.
    void AddItem(const std::string& riga);
    // The same lines as AddItem of each in turn, in one pass: a refill of thousands of lines
    // doesn't shift the list once a line.
    void AggiungiRighe(std::vector<std::string> righe);
    void RemoveItem(int i);
    void Clear();
    int ListCount() const { return static_cast<int>(righe_.size()); }
    // The line at i; "" outside the lines, as the classic List property gives.
    std::string List(int i) const;
    const std::vector<std::string>& Righe() const { return righe_; }
    int ListIndex() const { return listIndex_; }
    // Selects a line (-1 none); a change fires Click. A combo's text follows the line.
    void SetListIndex(int i);
    // Changes with every change of the lines, so that a view knows when to refresh.
    unsigned Revisione() const { return revisione_; }

    // Moves the focus here (lost focus of the control that had it, then got focus).
    void SetFocus();
    bool PuoAvereFuoco() const;
    bool HaFuoco() const;

    // What a user does, as the views and the script driver report it.
    // A click: takes the focus when it can, then Click (option: on). A disabled or hidden
    // control, or an entry of a menu that is disabled or hidden, does nothing.
    void Clicca();
    void DoppioClic();
    // One key typed while this control has the focus: key filter, edit, Change, key release.
    void Digita(int carattere);
    // A paste (or a drop) of `testo` at character `dove` of the text: each character goes
    // through the key filter as a typed one does, and what it keeps goes in, as far as
    // MaxLength allows, with one Change.
    void Incolla(const std::string& testo, std::size_t dove);

    // The screen's design values, kept at the first load and given back at each unload.
    struct Istantanea {
        std::string testo;
        bool enabled, visible, valore;
        std::vector<std::string> righe;
        int listIndex;
    };
    Istantanea Fotografa() const;
    void Ripristina(const Istantanea& i);

private:
    void ModificaTesto(int carattere);

    std::string testo_;
    bool valore_ = false;
    std::vector<std::string> righe_;
    int listIndex_ = -1;
    unsigned revisione_ = 0;
};

// A control array such as Saldi(0) to Saldi(5): its members carry the name and their index.
struct MatriceControlli {
    MatriceControlli(Schermo& schermo, TipoControllo tipo, const std::string& nome, int da, int a);
    Controllo& operator()(int i);     // failure 9 outside the bounds
    Controllo& operator[](int i) { return (*this)(i); }
    int Da() const { return da_; }
    int A() const { return da_ + static_cast<int>(membri_.size()) - 1; }

private:
    int da_;
    std::vector<std::unique_ptr<Controllo>> membri_;
};

struct Schermo {
    Schermo(std::string nome, std::string caption);
    Schermo(const Schermo&) = delete;
    Schermo& operator=(const Schermo&) = delete;
    ~Schermo();

    const std::string nome;
    std::string Caption;
    // A child of the main window's area; otherwise a window of its own (the main window itself,
    // and the screens that are only ever shown modally).
    bool Figlio = true;

    std::function<void()> Load, Activate, Unload;

    StatoSchermo Stato() const { return stato_; }
    bool Caricato() const { return stato_ != StatoSchermo::Scaricato; }
    bool Mostrato() const { return stato_ == StatoSchermo::Visibile || stato_ == StatoSchermo::Modale; }

    // Loads the screen when it isn't loaded (Load runs once), without showing it.
    void Carica();
    // Loads when needed, shows, and activates. A modal show returns when the screen is down.
    void Show(bool modale = false);
    void Hide();
    // Unload runs, the controls take their design values again, the screen is down.
    void UnloadMe();
    // The screen comes to the front: Activate runs unless it is the active screen already.
    void Attiva();

    const std::vector<Controllo*>& Controlli() const { return controlli_; }
    Controllo* Trova(const std::string& nome, int indice = -1) const;
    Controllo* Fuoco() const { return fuoco_; }
    // The next control that can have the focus after `da`, in tab order, round the screen.
    Controllo* Successivo(const Controllo* da) const;

private:
    friend struct Controllo;
    void Registra(Controllo* c) { controlli_.push_back(c); }
    void CambiaFuoco(Controllo* nuovo);
    void Ritira();

    StatoSchermo stato_ = StatoSchermo::Scaricato;
    std::vector<Controllo*> controlli_;
    std::vector<Controllo::Istantanea> progetto_;
    std::string captionProgetto_;
    Controllo* fuoco_ = nullptr;
    bool inUscita_ = false;
    Schermo* sotto_ = nullptr;   // in front when this one was shown modally
};

// Every screen model registers here when it is made, so that any control can be found by
// "Screen.Control" or "Screen.Control(i)".
const std::vector<Schermo*>& Schermi();
Schermo* TrovaSchermo(const std::string& nome);
Controllo* TrovaControllo(const std::string& riferimento);
// The screen that is in front (the last activated), or nullptr.
Schermo* SchermoAttivo();
// "Screen.Control" or "Screen.Control(i)" of a control.
std::string Riferimento(const Controllo& c);
