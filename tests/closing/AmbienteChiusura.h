#pragma once
// What the tests of the close share: a fresh folder that is the current directory, with the data
// directory "./" and the program directory "prog/", so that "./" + the 10-character stem fills
// exactly the 12 characters of the owner field of .chi; the headless port with a fixed today;
// every screen made; files read and written whole.
#include "screen/PiattaformaSenzaSchermo.h"
#include "shell/Applicazione.h"
#include "store/FileRecord.h"
#include "store/Stato.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <unistd.h>

namespace fs = std::filesystem;

inline std::string Contenuto(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// Every file of a folder by name, with its bytes.
inline std::map<std::string, std::string> Cartella(const fs::path& cartella) {
    std::map<std::string, std::string> file;
    for (const auto& voce : fs::directory_iterator(cartella))
        if (voce.is_regular_file()) file[voce.path().filename()] = Contenuto(voce.path());
    return file;
}

template <class R> void Scrivi(const std::string& nome, const R& record, long numero) {
    ConRecord(nome, R::Lunghezza, 1, [&] { ScriviRecord(record, numero, 1); });
}
template <class R> R Leggi(const std::string& nome, long numero) {
    R record;
    ConRecord(nome, R::Lunghezza, 1, [&] { LeggiRecord(record, numero, 1); });
    return record;
}

class AmbienteChiusura : public ::testing::Test {
protected:
    PiattaformaSenzaSchermo porta;
    fs::path dir, prima;
    std::unique_ptr<Applicazione> app;

    void SetUp() override {
        char modello[] = "/tmp/chiusuraXXXXXX";
        dir = mkdtemp(modello);
        prima = fs::current_path();
        fs::current_path(dir);
        fs::create_directory("prog");
        porta.oggi = DataCivile{5, 7, 2001};
        ImpostaPiattaforma(&porta);
        Stato = StatoApplicazione{};
        Stato.PercorsoDati = "./";
        Stato.PercorsoProgramma = "prog/";
        Stato.CodContoAperto = "CONTO12345";
        Stato.FormatoImporti = "#,###,###,##0.00";
        Stato.NumCausali = 2;
        Stato.Causali[1].CodCausale = "VS";
        Stato.Causali[1].DescCausale = "Versamento contanti in banca";
        Stato.Causali[2].CodCausale = "PR";
        Stato.Causali[2].DescCausale = "Prelievo";
        app = std::make_unique<Applicazione>();
    }

    void TearDown() override {
        GuastoAllaScrittura(0);
        app.reset();
        ChiudiTutti();
        ImpostaPiattaforma(nullptr);
        fs::current_path(prima);
        fs::remove_all(dir);
    }

    static std::string File(const std::string& estensione) {
        return NomeFileConto(estensione);
    }
};
