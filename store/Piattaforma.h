#pragma once
// The platform port: everything the logic needs of the desktop goes through this one interface.
// The Qt program implements it for real; the tests and marendola-script headless.
#include <string>
#include <vector>

struct Schermo;

enum class Icona { Nessuna, Critica, Domanda, Esclamazione, Informazione };
enum class Pulsanti { OK, OKAnnulla, InterrompiRiprovaIgnora, SiNoAnnulla, SiNo, RiprovaAnnulla };
enum class Risposta { OK = 1, Annulla = 2, Interrompi = 3, Riprova = 4, Ignora = 5, Si = 6, No = 7 };

// The buttons of a set, in the order they stand in the box.
std::vector<Risposta> RisposteDi(Pulsanti insieme);
// "OK", "Annulla", "Riprova", "Ignora", "Interrompi", "Si", "No".
std::string NomeRisposta(Risposta r);

struct DataCivile {
    int giorno = 0, mese = 0, anno = 0;
};

struct PortaPiattaforma {
    virtual ~PortaPiattaforma() = default;

    // A modal message box; `predefinito` is the 0-based place of the default button in the set.
    virtual Risposta MsgBox(const std::string& testo, const std::string& titolo, Icona icona,
                            Pulsanti pulsanti, int predefinito) = 0;
    virtual void Beep() = 0;
    virtual void Clessidra(bool accesa) = 0;
    virtual DataCivile Oggi() = 0;
    // A failure that reached the top-level handler: the box "Errore" with number and description.
    virtual void Guasto(int numero, const std::string& descrizione) = 0;

    // The screens: the model tells the view what to show. A modal show returns only when the
    // screen is no longer up (hidden or unloaded); meanwhile the user's events go on inside it.
    virtual void MostraSchermo(Schermo& schermo, bool modale) = 0;
    virtual void NascondiSchermo(Schermo& schermo) = 0;
    virtual void ScaricaSchermo(Schermo& schermo) = 0;
    // The program ends (after "Esci", or a maintenance step that closes it).
    virtual void Termina() = 0;

    // The printer device.
    virtual void StampanteFont(const std::string& nome) = 0;
    virtual void StampanteCorpo(double punti) = 0;
    virtual void StampanteGrassetto(bool acceso) = 0;
    virtual void StampanteTab(int colonna) = 0;    // the column where the next line starts
    virtual void StampaRiga(const std::string& testo) = 0;
    virtual void StampanteNuovaPagina() = 0;
    virtual void StampanteFine() = 0;
    // A run broken by a failure: what it sent is thrown away, not printed with the next one.
    virtual void StampanteAnnulla() {}

    // The mounted volumes, for the drive pickers.
    virtual std::vector<std::string> Unita() = 0;

    // Later needs; the headless side does nothing.
    virtual void ImpostaStampante() {}
    // The colour dialog, starting from `colore` (see store/Colore.h); false when cancelled.
    virtual bool ScegliColore(double& /*colore*/) { return false; }
    // Starts the desktop program `programma`, found on the path, without waiting for it; false
    // when it isn't installed.
    virtual bool AvviaProgramma(const std::string& /*programma*/) { return false; }
    // A file or a web address in the desktop's own viewer or browser; false when none takes it.
    virtual bool ApriGuida(const std::string& /*file*/) { return false; }
    virtual bool ApriBrowser(const std::string& /*indirizzo*/) { return false; }
    // Arranges the child screens of the main window: 0 cascade, 1 tile horizontally, 2 tile
    // vertically, 3 arrange the icons (the classic Arrange values).
    virtual void DisponiFinestre(int /*modo*/) {}
};

// The port in use; one is set at the start of the program or of a test.
PortaPiattaforma& Piattaforma();
void ImpostaPiattaforma(PortaPiattaforma* porta);
