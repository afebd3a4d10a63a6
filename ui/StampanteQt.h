#pragma once
// The printer device on the desktop: lines of text at fixed positions on the printer chosen in
// "Imposta stampante" (the system's default until then). With no printer installed, or with
// printing to a file chosen, each report becomes a PDF of its own in the user's documents folder.
#include <QFont>

#include <functional>
#include <memory>
#include <string>

class QPainter;
class QPrinter;
class QWidget;

struct StampanteQt {
    StampanteQt();
    ~StampanteQt();
    StampanteQt(const StampanteQt&) = delete;
    StampanteQt& operator=(const StampanteQt&) = delete;

    // Where the PDF files go; empty: the user's documents folder.
    std::string cartellaDocumenti;
    // Called with the path of each finished PDF; the port opens it on the desktop.
    std::function<void(const std::string&)> documentoPronto;

    void Font(const std::string& nome);
    void Corpo(double punti);
    void Grassetto(bool acceso);
    void Tab(int colonna);
    void Riga(const std::string& testo);
    void NuovaPagina();
    void Fine();
    void Annulla();
    // The system's print setup; the choice holds for every later report.
    void Imposta(QWidget* padre);

  private:
    void Inizia();
    QFont Carattere() const;
    bool SuFile() const;

    std::unique_ptr<QPrinter> stampante_;
    std::unique_ptr<QPainter> pittore_;
    std::string nome_; // the report's name: its first line of text
    std::string file_; // the PDF of the run under way, under a provisional name
    std::string famiglia_ = "Courier New";
    double punti_ = 10;
    bool grassetto_ = false;
    int colonna_ = 1;
    double y_ = 0;      // top of the next line on the page, in device units
    bool riga_ = false; // the page has a line on it
};
