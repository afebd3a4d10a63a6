#include "shell/Servizi.h"

#include "shell/Applicazione.h"
#include "store/FileRecord.h"
#include "store/Piattaforma.h"
#include "store/RecordCondizioni.h"
#include "store/Stato.h"
#include "store/Testo.h"

namespace {
void Avverti(const std::string& testo) {
    Piattaforma().MsgBox(testo, "Attenzione", Icona::Esclamazione, Pulsanti::OK, 0);
}

bool CarattereHost(char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '.' || c == '-' || c == ':';
}

// The shipped help text stands in for the classic help file, in the desktop's text viewer.
void ApriSommario() {
    std::string guida = NomeFileProgramma("Help01.txt");
    if (!Piattaforma().ApriGuida(guida))
        Avverti("Impossibile aprire la guida " + guida + ": nessun programma la può mostrare.");
}
} // namespace

void CollegaMenuServizi(MDIForm1& f) {
    f.pref.Click = [] { App().Form23.S.Show(); };
    f.color.Click = [] { App().Form5.S.Show(); };
    f.Informazioni.Click = [] { App().Form16.S.Show(); };
    f.sommario.Click = ApriSommario;
    f.calco.Click = ApriCalcolatrice;
    f.browse.Click = ApriSitoBanca;
}

std::string IndirizzoWeb(const std::string& indirizzo) {
    std::string testo = Trim(indirizzo);
    if (testo.find_first_of(" \t\r\n") != std::string::npos) return "";
    std::string schema = "https://";
    std::string resto = testo;
    for (const char* ammesso : {"http://", "https://"})
        if (LCase(Left(testo, Len(ammesso))) == ammesso) {
            schema = ammesso;
            resto = Mid(testo, Len(ammesso) + 1);
        }
    if (resto.find("://") != std::string::npos) return "";
    std::string host = LCase(resto.substr(0, resto.find_first_of("/?#")));
    bool valido = host.find('.') != std::string::npos && host.front() != '.' &&
                  host.back() != '.' && host.find("..") == std::string::npos;
    for (char c : host)
        valido = valido && CarattereHost(c);
    return valido ? schema + resto : "";
}

void ApriSitoBanca() {
    RecOpzioniCalcolo opzioni;
    ConRecord(NomeFileConto(".Opz"), RecOpzioniCalcolo::Lunghezza, 1,
              [&opzioni] { LeggiRecord(opzioni, 1, 1); });
    std::string scritto = Trim(opzioni.IndInter);
    if (scritto.empty()) {
        Avverti("Indirizzo Internet della banca non inserito: indicarlo nelle condizioni del "
                "conto (Servizi, Interessi e costi).");
        return;
    }
    std::string indirizzo = IndirizzoWeb(scritto);
    if (indirizzo.empty()) {
        Avverti("Indirizzo Internet non valido: " + scritto);
        return;
    }
    if (!Piattaforma().ApriBrowser(indirizzo))
        Avverti("Impossibile aprire " + indirizzo + ": nessun browser disponibile.");
}

void ApriCalcolatrice() {
    for (const char* programma :
         {"gnome-calculator", "kcalc", "galculator", "qalculate-gtk", "xcalc"})
        if (Piattaforma().AvviaProgramma(programma)) return;
    Avverti("Nessuna calcolatrice installata. Installare ad esempio gnome-calculator, kcalc, "
            "galculator, qalculate-gtk o xcalc.");
}
