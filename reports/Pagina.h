#pragma once
// The page of every printed report: the head, the counted body lines with their page throws and
// page feet, and the end with its fill and end mark. A report gives its own rows (titles, page
// limit, fill) and calls these; nothing of the layout is written twice.
//
// A run, in short:
//     Stampa s{TestataElenco(...), PaginaElenco(...)};
//     IniziaStampa(s);                    // the head of page 1
//     RigaCorpo(s, riga);                 // one body line, counted, breaking the page at the limit
//     RigaLibera(riga);                   // a line outside the count (carried and closing lines)
//     FineStampa(s);                      // fill, end mark, end of the document
// The whole run goes inside ConClessidra, which shows the wait pointer and, when a failure
// breaks the run, throws the half-printed document away before the failure goes on.
// Other heads are other values of the same records: the ladder's statement has title size 18,
// the currency on the account line, a rule of 80 and its column heading under the selection, a
// page thrown at a count of exactly 55 that starts at 1, a fill to 47 and its own rule before
// the end mark; the statement of competences prints one head (StampaTestata) and free lines.
// The first line of text of a document names it where it becomes a file: the title.
#include <functional>
#include <string>
#include <vector>

// What the head of a page prints, in order: the title block, the line of the account and the
// print date, the selection in the list font, and the lines beneath it (rules, column heading).
struct Testata {
    std::string corpoTitolo = "18"; // sizes as the user's locale writes them: "9,75"
    std::string titolo;
    bool conConto = true;   // false: empty lines where the account would stand
    bool conValuta = false; // "         Valuta: " and the currency after the date
    std::string corpoElenco = "9,75";
    std::string selezione;
    bool selezioneGrassetto = true;
    std::vector<std::string> sotto; // printed after the selection line
};

// How the body fills a page and how the run ends.
struct ModelloPagina {
    short limite = 57;                 // the line counter at which the page is thrown
    bool oltre = false;                // true: at the limit or past it (a line may count twice)
    short riempimento = 52;            // the end fill reaches this line count
    bool bianco = true;                // a body line is printed behind one blank
    std::vector<std::string> chiusura; // after the fill, before "Pagina ... fine stampa"
};

// One print run: its head, its page model and its two counters.
struct Stampa {
    Testata testata;
    ModelloPagina modello;
    short righe = 0; // the line counter; the head's lines don't count
    short pagina = 1;
};

// The rule under the selection and around the column heading: one blank and 94 "-".
std::string Riga94();
// The heads and the page model of the list reports: title, selection and column heading are
// what differs between them.
Testata TestataElenco(const std::string& titolo, const std::string& selezione,
                      const std::string& colonne);
ModelloPagina PaginaElenco(short limite, bool oltre, short riempimento);

// A font size as its text in the user's locale ("9,75"), to the printer.
void CorpoStampante(const std::string& testo);
// Prints the head of a page.
void StampaTestata(const Testata& t);
void IniziaStampa(Stampa& s);
// A body line: counted; at the page limit the page foot, a throw and a new head come first.
void RigaCorpo(Stampa& s, const std::string& riga);
// A line that counts for nothing and never breaks the page.
void RigaLibera(const std::string& riga);
// "Pagina N" with the end mark, as the last line of a document has it.
std::string RigaFineStampa(short pagina);
// The end fill, the closing lines, "Pagina" with the end mark, the end of the document.
void FineStampa(Stampa& s);

// Runs a print command with the wait pointer on; a failure on the way discards what was sent
// to the printer and goes on to the caller.
void ConClessidra(const std::function<void()>& stampa);

// A whole number right-aligned to `larghezza`, as a column of a list: never cut.
std::string NumeroStampa(long numero, int larghezza);
