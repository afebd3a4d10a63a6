#pragma once
// What the fuzz targets share: a folder of their own for the whole run, the input cut into
// files, and a start of the program on them through the port without a display, after which the
// main window must be up whatever the files held.
#include "screen/PiattaformaSenzaSchermo.h"
#include "shell/Applicazione.h"
#include "shell/Avvio.h"
#include "store/FileRecord.h"
#include "store/Guasto.h"
#include "store/Stato.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace fs = std::filesystem;

// The input as files in a row: for each, a 2-byte little-endian length and then that many bytes
// (or what is left). A length of 0xFFFF leaves the file out, as does the end of the input.
inline void ScriviFile(const std::uint8_t* byte, std::size_t quanti,
                       const std::vector<fs::path>& file) {
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

// Made at the first input, removed when the run ends.
inline const fs::path& CartellaFuzz() {
    static const fs::path cartella = [] {
        char modello[] = "/tmp/mrd-fuzz-XXXXXX";
        if (!mkdtemp(modello)) std::abort();
        static const std::string daTogliere = modello;
        std::atexit([] { fs::remove_all(daTogliere); });
        return fs::path(daTogliere);
    }();
    return cartella;
}

// The flags that the currency combo shows, so that the start reaches its later steps.
inline void ScriviBandiere(const fs::path& programma) {
    for (int n = 1; n <= 15; ++n)
        std::ofstream(programma / (std::to_string(n) + ".ICO"));
}

inline void AvviaEControlla(const fs::path& programma) {
    static PiattaformaSenzaSchermo porta;
    porta.oggi = DataCivile{15, 3, 2001};
    porta.messaggi.clear();
    ImpostaPiattaforma(&porta);
    Stato = StatoApplicazione{};
    auto app = std::make_unique<Applicazione>();
    EseguiEvento([&] { AvviaProgramma(programma.string()); });
    if (!app->MDIForm1.S.Mostrato()) std::abort();
}
