#pragma once
// The register's environment with its folder made the current directory, the data directory
// "./" and the program directory "prog/", so that "./" and the 10-character stem fill exactly
// the 12 characters of the owner field of .chi; and the files of a folder read whole.
#include "../ledger/AmbienteRegistro.h"
#include "../shell/Ambiente.h"

#include <map>

inline std::map<std::string, Byte> Cartella(const fs::path& cartella) {
    std::map<std::string, Byte> file;
    for (const auto& voce : fs::directory_iterator(cartella))
        if (voce.is_regular_file()) file[voce.path().filename()] = ContenutoFile(voce.path());
    return file;
}

class AmbienteChiusura : public AmbienteRegistro {
protected:
    fs::path prima;

    void SetUp() override {
        AmbienteRegistro::SetUp();
        prima = fs::current_path();
        fs::current_path(dir);
        fs::create_directory("prog");
        Stato.PercorsoDati = "./";
        Stato.PercorsoProgramma = "prog/";
        Stato.CodContoAperto = "CONTO12345";
    }

    void TearDown() override {
        GuastoAllaScrittura(0);
        fs::current_path(prima);
        AmbienteRegistro::TearDown();
    }

    static std::string File(const std::string& estensione) { return NomeFileConto(estensione); }
};
