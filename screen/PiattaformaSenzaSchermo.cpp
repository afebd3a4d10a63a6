#include "screen/PiattaformaSenzaSchermo.h"

#include "screen/Schermo.h"
#include "store/Colore.h"

#include <algorithm>

#include <chrono>
#include <cstdio>
#include <ctime>

Risposta PiattaformaSenzaSchermo::MsgBox(const std::string& testo, const std::string& titolo,
                                         Icona, Pulsanti pulsanti, int predefinito) {
    auto ammesse = RisposteDi(pulsanti);
    Risposta r = ammesse.at(static_cast<std::size_t>(predefinito) < ammesse.size()
                                ? static_cast<std::size_t>(predefinito)
                                : 0);
    if (!risposte.empty()) {
        r = risposte.front();
        risposte.pop_front();
    }
    std::string righe;
    for (char c : testo) {
        if (c == '\r') continue;
        righe += c == '\n' ? std::string("\\n") : std::string(1, c);
    }
    messaggi.push_back("[" + titolo + "] " + righe + " -> " + NomeRisposta(r));
    return r;
}

DataCivile PiattaformaSenzaSchermo::Oggi() {
    if (oggi) return *oggi;
    std::time_t t = std::time(nullptr);
    std::tm locale{};
    localtime_r(&t, &locale);
    return {locale.tm_mday, locale.tm_mon + 1, locale.tm_year + 1900};
}

void PiattaformaSenzaSchermo::Guasto(int numero, const std::string& descrizione) {
    messaggi.push_back("FAILURE " + std::to_string(numero) + " " + descrizione);
}

void PiattaformaSenzaSchermo::MostraSchermo(Schermo& schermo, bool modale) {
    if (modale && cicloModale) cicloModale(schermo);
}

void PiattaformaSenzaSchermo::StampanteCorpo(double punti) {
    char testo[32];
    std::snprintf(testo, sizeof testo, "%g", punti);
    carta.push_back(std::string("{size ") + testo + "}");
}

bool PiattaformaSenzaSchermo::ScegliColore(double& colore) {
    std::optional<double> scelto;
    if (!colori.empty()) {
        scelto = colori.front();
        colori.pop_front();
    }
    if (!scelto) {
        messaggi.push_back("COLOUR cancelled");
        return false;
    }
    colore = *scelto;
    Rgb c = RgbDi(colore);
    char testo[16];
    std::snprintf(testo, sizeof testo, "#%02X%02X%02X", c.r, c.g, c.b);
    messaggi.push_back(std::string("COLOUR ") + testo);
    return true;
}

bool PiattaformaSenzaSchermo::AvviaProgramma(const std::string& programma) {
    if (std::find(programmi.begin(), programmi.end(), programma) == programmi.end()) return false;
    messaggi.push_back("RUN " + programma);
    return true;
}

bool PiattaformaSenzaSchermo::ApriGuida(const std::string& file) {
    messaggi.push_back("HELP " + file);
    return true;
}

bool PiattaformaSenzaSchermo::ApriBrowser(const std::string& indirizzo) {
    messaggi.push_back("BROWSER " + indirizzo);
    return true;
}
