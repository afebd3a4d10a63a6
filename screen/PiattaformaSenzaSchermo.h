#pragma once
// The platform port without a display, for the tests and marendola-script: message boxes take
// queued answers, today can be set, and everything shown or printed is kept as text.
#include "store/Piattaforma.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

struct PiattaformaSenzaSchermo : PortaPiattaforma {
    std::optional<DataCivile> oggi;           // unset: the real date
    std::deque<Risposta> risposte;            // answers for the next message boxes
    std::vector<std::string> messaggi;        // "[TITLE] TEXT -> ANSWER", "BEEP", "FAILURE N ..."
    std::vector<std::string> carta;           // "|line|", "{font NAME}", "{page}", ...
    std::vector<std::string> unita{"/"};      // the mounted volumes the drive pickers list
    std::deque<std::optional<double>> colori; // colour dialogs: a colour, or nullopt to cancel
    std::vector<std::string> programmi;       // the outside programs installed
    bool terminato = false;
    bool clessidra = false;
    // Runs the user's events while a modal screen is up; it must return once the screen is down.
    // Unset, a modal show returns at once.
    std::function<void(Schermo&)> cicloModale;

    Risposta MsgBox(const std::string& testo, const std::string& titolo, Icona icona,
                    Pulsanti pulsanti, int predefinito) override;
    void Beep() override { messaggi.push_back("BEEP"); }
    void Clessidra(bool accesa) override { clessidra = accesa; }
    DataCivile Oggi() override;
    void Guasto(int numero, const std::string& descrizione) override;

    void MostraSchermo(Schermo& schermo, bool modale) override;
    void NascondiSchermo(Schermo&) override {}
    void ScaricaSchermo(Schermo&) override {}
    void Termina() override { terminato = true; }

    void StampanteFont(const std::string& nome) override { carta.push_back("{font " + nome + "}"); }
    void StampanteCorpo(double punti) override;
    void StampanteGrassetto(bool acceso) override {
        carta.push_back(acceso ? "{bold on}" : "{bold off}");
    }
    void StampanteTab(int colonna) override { carta.push_back("{tab " + std::to_string(colonna) + "}"); }
    void StampaRiga(const std::string& testo) override { carta.push_back("|" + testo + "|"); }
    void StampanteNuovaPagina() override { carta.push_back("{page}"); }
    void StampanteFine() override { carta.push_back("{end}"); }
    void StampanteAnnulla() override { carta.push_back("{abandoned}"); }

    std::vector<std::string> Unita() override { return unita; }

    // With no answer queued the colour dialog is cancelled. The transcript gets "COLOUR #RRGGBB"
    // or "COLOUR cancelled", "RUN program", "HELP file", "BROWSER address".
    bool ScegliColore(double& colore) override;
    bool AvviaProgramma(const std::string& programma) override;
    bool ApriGuida(const std::string& file) override;
    bool ApriBrowser(const std::string& indirizzo) override;
};
