#include "shell/PrimoAvvio.h"

#include "refdata/Causali.h"
#include "shell/Applicazione.h"
#include "store/FileRecord.h"
#include "store/Guasto.h"
#include "store/RecordAnagrafe.h"
#include "store/Stato.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace {
// The flags 1.ICO to 15.ICO and the help text, copied only where the program directory lacks
// them, so that a picture of the user's own stays.
void InstallaForniti() {
    std::string origine = CartellaForniti();
    if (origine.empty()) return;
    std::vector<std::string> nomi{"Help01.txt"};
    for (int n = 1; n <= 15; ++n)
        nomi.push_back(std::to_string(n) + ".ICO");
    for (const std::string& nome : nomi) {
        fs::path da = fs::path(origine) / nome;
        std::string a = NomeFileProgramma(nome);
        if (fs::exists(da) && !fs::exists(a)) CopiaFile(da.string(), a);
    }
}
} // namespace

bool PrimoAvvio() {
    for (const char* nome :
         {"Causali.DAT", "RecCausa.dat", "Valute.DAT", "Imposta.DAT", "colori.col"})
        if (fs::exists(fs::symlink_status(NomeFileProgramma(nome)))) return false;
    return true;
}

void SeminaCausali() {
    const char* seme[][2] = {{"AS", "ASSEGNO"}, {"CA", "CARNET"}, {"GC", "GIROCONTO"}};
    for (short n = 1; n <= 3; ++n) {
        RecCausale& c = Stato.Causali[n];
        c.Numero = n;
        c.CodCausale = seme[n - 1][0];
        c.DescCausale = seme[n - 1][1];
        c.Sospeso = "S";
        c.DareAvere = "U";
        c.SoggettoCosto = "1";
        ScriviCausale(n, n);
    }
    ScriviContatore(NomeFileProgramma("RecCausa.dat"), 3);
}

void EseguiPrimoAvvio() {
    // A "dati" made beforehand by hand is taken as it is.
    CreaCartelle(Stato.PercorsoProgramma + "dati");
    InstallaForniti();
    SeminaCausali();

    RecValuta euro;
    euro.Numero = 15;
    euro.Nome = "Euro";
    euro.Cambio = 1;
    euro.Paese = "Unione Europea";
    ApriRecord(NomeFileProgramma("Valute.DAT"), RecValuta::Lunghezza, 1);
    ScriviRecord(euro, 15, 1);
    ChiudiRecord(1);

    App().Form1.S.Show();
}

std::string CartellaForniti() {
    std::error_code e;
    fs::path eseguibile = fs::read_symlink("/proc/self/exe", e);
    if (e) return "";
    for (const fs::path& cartella :
         {eseguibile.parent_path() / "shipped", eseguibile.parent_path().parent_path() / "shipped"})
        if (fs::is_directory(cartella)) return cartella.string();
    return "";
}
