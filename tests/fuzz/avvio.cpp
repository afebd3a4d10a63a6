// The start of the program on random shared files: the colours, the preferences, the accounts
// and their counter, the causali and theirs, the currencies. The stored data path is blanked, so
// that the start keeps to the folder of the run.
#include "tests/fuzz/Fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti) {
    const fs::path programma = CartellaFuzz() / "prog";
    const fs::path dati = programma / "dati";
    fs::remove_all(programma);
    fs::create_directories(dati);
    ScriviBandiere(programma);
    ScriviFile(byte, quanti,
               {programma / "colori.col", programma / "Imposta.DAT", dati / "RecConti.dat",
                dati / "Conti.dat", programma / "RecCausa.dat", programma / "Causali.DAT",
                programma / "Valute.DAT"});
    if (fs::exists(programma / "Imposta.DAT")) {
        std::fstream imposta(programma / "Imposta.DAT",
                             std::ios::binary | std::ios::in | std::ios::out);
        auto lunghezza = static_cast<std::streamsize>(
            std::min<std::uintmax_t>(35, fs::file_size(programma / "Imposta.DAT")));
        imposta.write(std::string(35, ' ').data(), lunghezza);
    }
    AvviaEControlla(programma);
    return 0;
}
