#pragma once
// The open account's environment, whose folder is the current directory, the data directory
// "./" and the program directory "prog/", so that "./" and the 10-character stem fill exactly
// the 12 characters of the owner field of .chi; and the files of a folder read whole.
#include "tests/Ambiente.h"

#include <map>

inline std::map<std::string, Byte> Cartella(const fs::path& cartella) {
    std::map<std::string, Byte> file;
    for (const auto& voce : fs::directory_iterator(cartella))
        if (voce.is_regular_file()) file[voce.path().filename()] = ContenutoFile(voce.path());
    return file;
}

class AmbienteChiusura : public AmbienteConto {
protected:
    void SetUp() override {
        AmbienteConto::SetUp();
        fs::create_directory("prog");
        Stato.PercorsoDati = "./";
        Stato.PercorsoProgramma = "prog/";
        Stato.CodContoAperto = "CONTO12345";
    }

    void TearDown() override {
        GuastoAllaScrittura(0);
        AmbienteConto::TearDown();
    }

    static std::string File(const std::string& estensione) { return NomeFileConto(estensione); }
};
