#pragma once
// The platform port on the desktop: message boxes, cursor, screens as windows of the main
// window's area or as modal windows, and the volumes of the machine.
#include "store/Piattaforma.h"
#include "ui/StampanteQt.h"

#include <QPointer>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

class QAbstractButton;
class QEventLoop;
class QMainWindow;
class QMdiArea;
class QMdiSubWindow;
class QMessageBox;
class QObject;
class QWidget;

struct PiattaformaQt : PortaPiattaforma {
    PiattaformaQt();
    ~PiattaformaQt() override;
    PiattaformaQt(const PiattaformaQt&) = delete;
    PiattaformaQt& operator=(const PiattaformaQt&) = delete;

    // Answers a box in the user's place: given the box ready to show, returns the button to
    // press. Unset, the box waits for the user.
    std::function<QAbstractButton*(QMessageBox&)> rispondi;
    // The printer device; a finished PDF is opened on the desktop unless the test says otherwise.
    StampanteQt stampante;
    bool terminato = false;

    Risposta MsgBox(const std::string& testo, const std::string& titolo, Icona icona,
                    Pulsanti pulsanti, int predefinito) override;
    void Beep() override;
    void Clessidra(bool accesa) override;
    DataCivile Oggi() override;
    void Guasto(int numero, const std::string& descrizione) override;

    void MostraSchermo(Schermo& schermo, bool modale) override;
    void NascondiSchermo(Schermo& schermo) override;
    void ScaricaSchermo(Schermo& schermo) override;
    void Termina() override;

    void StampanteFont(const std::string& nome) override { stampante.Font(nome); }
    void StampanteCorpo(double punti) override { stampante.Corpo(punti); }
    void StampanteGrassetto(bool acceso) override { stampante.Grassetto(acceso); }
    void StampanteTab(int colonna) override { stampante.Tab(colonna); }
    void StampaRiga(const std::string& testo) override { stampante.Riga(testo); }
    void StampanteNuovaPagina() override { stampante.NuovaPagina(); }
    void StampanteFine() override { stampante.Fine(); }
    void StampanteAnnulla() override { stampante.Annulla(); }
    void ImpostaStampante() override;

    std::vector<std::string> Unita() override;
    void DisponiFinestre(int modo) override;
    bool ScegliColore(double& colore) override;
    bool AvviaProgramma(const std::string& programma) override;
    bool ApriGuida(const std::string& file) override;
    bool ApriBrowser(const std::string& indirizzo) override;

    // Runs the user's events until the program ends.
    void Esegui();

    // The main window, made from its form at the first need: a child screen shown while the
    // main window is still loading goes into its area all the same.
    QMainWindow* FinestraPrincipale();
    // The window that holds a screen (the main window, an MDI window or a modal window).
    QWidget* FinestraDi(const Schermo& schermo) const;

  private:
    struct Vista {
        QPointer<QWidget> finestra;
        bool modale = false;
    };
    QWidget* Prepara(Schermo& schermo, bool modale);
    void Distruggi(Schermo& schermo);
    void FineModale(const Schermo& schermo);
    void Contieni(QMdiSubWindow& figlia);
    void Affianca(bool orizzontale);
    void DisponiIcone();

    QPointer<QMainWindow> principale_;
    QPointer<QMdiArea> area_;
    std::map<Schermo*, Vista> viste_;
    // The loops that wait: one a modal screen, and the program's own under nullptr.
    std::map<const Schermo*, QEventLoop*> cicli_;
    std::unique_ptr<QObject> chiusure_;
    bool clessidra_ = false;
};
