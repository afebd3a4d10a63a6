// The start of the program on random files, through the port without a display: whatever the
// files hold, the main window must be up after it. fuzz_avvio gives it random shared files, with
// the stored data path blanked so that the start keeps to the folder of the run; fuzz_conto
// (FUZZ_conto) random files of the account "12", which it opens as the stored start account.
#include "screen/PiattaformaSenzaSchermo.h"
#include "shell/Applicazione.h"
#include "shell/Avvio.h"
#include "store/FileRecord.h"
#include "store/Guasto.h"
#include "store/RecordAnagrafe.h"
#include "store/Stato.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {
// The input as files in a row: for each, a 2-byte little-endian length and then that many bytes
// (or what is left). A length of 0xFFFF leaves the file out, as does the end of the input.
void ScriviFile(const std::uint8_t* byte, std::size_t quanti, const std::vector<fs::path>& file) {
    std::size_t i = 0;
    for (const fs::path& nome : file) {
        fs::remove(nome);
        if (i + 2 > quanti) continue;
        std::size_t lunghezza = byte[i] | static_cast<std::size_t>(byte[i + 1]) << 8;
        i += 2;
        if (lunghezza == 0xFFFF) continue;
        lunghezza = std::min(lunghezza, quanti - i);
        std::ofstream(nome, std::ios::binary)
            .write(reinterpret_cast<const char*>(byte + i),
                   static_cast<std::streamsize>(lunghezza));
        i += lunghezza;
    }
}

// The program folder of the run, made at the first input and removed when the run ends.
const fs::path& Programma() {
    static char cartella[] = "/tmp/mrd-fuzz-XXXXXX";
    static const fs::path programma = [] {
        if (!mkdtemp(cartella)) std::abort();
        std::atexit([] { fs::remove_all(cartella); });
        return fs::path(cartella) / "prog";
    }();
    return programma;
}

// With the flags that the currency combo shows, so that the start reaches its later steps.
void AvviaEControlla() {
    fs::create_directories(Programma() / "dati");
    for (int n = 1; n <= 15; ++n) std::ofstream(Programma() / (std::to_string(n) + ".ICO"));
    static PiattaformaSenzaSchermo porta;
    porta.oggi = DataCivile{15, 3, 2001};
    porta.messaggi.clear();
    ImpostaPiattaforma(&porta);
    Stato = StatoApplicazione{};
    auto app = std::make_unique<Applicazione>();
    EseguiEvento([&] { AvviaProgramma(Programma().string()); });
    if (!app->MDIForm1.S.Mostrato()) std::abort();
}
} // namespace

#ifdef FUZZ_conto
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti) {
    const fs::path dati = Programma() / "dati";
    // An installation started once, with the account "12" as start account.
    static const bool installato = [&] {
        AvviaEControlla();
        ConRecord((Programma() / "Imposta.DAT").string(), RecImposta::Lunghezza, 1,
                  [] { ScriviRecord(RecImposta{.contAvv = "12", .decimali = 2}, 1, 1); });
        ConRecord((dati / "Conti.dat").string(), RecConto::Lunghezza, 1, [] {
            ScriviRecord(RecConto{.Numero = 1, .CodConto = "12", .NomeBanca = "Banca"}, 1, 1);
        });
        ScriviContatore((dati / "RecConti.dat").string(), 1);
        return true;
    }();
    for (const std::string& file : FileCheIniziano(dati.string(), "12.")) fs::remove(file);
    std::vector<fs::path> file;
    for (const char* estensione : {".MOV", ".MOR", ".TOT", ".RIP", ".CAR", ".NRC", ".FOG", ".NRF"})
        file.push_back(dati / (std::string("12") + estensione));
    ScriviFile(byte, quanti, file);
    AvviaEControlla();
    return installato ? 0 : 1;
}
#else
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti) {
    const fs::path programma = Programma(), dati = programma / "dati";
    fs::remove_all(programma);
    fs::create_directories(dati);
    ScriviFile(byte, quanti,
               {programma / "colori.col", programma / "Imposta.DAT", dati / "RecConti.dat",
                dati / "Conti.dat", programma / "RecCausa.dat", programma / "Causali.DAT",
                programma / "Valute.DAT"});
    const fs::path imposta = programma / "Imposta.DAT";
    if (fs::exists(imposta)) {
        std::string blank(std::min<std::uintmax_t>(35, fs::file_size(imposta)), ' ');
        std::fstream(imposta, std::ios::binary | std::ios::in | std::ios::out)
            .write(blank.data(), static_cast<std::streamsize>(blank.size()));
    }
    AvviaEControlla();
    return 0;
}
#endif
