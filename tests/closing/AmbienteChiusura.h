#pragma once
// What the tests of the close share: the register's environment with its folder made the
// current directory, the data directory "./" and the program directory "prog/", so that "./" and
// the 10-character stem fill exactly the 12 characters of the owner field of .chi; files read
// and written whole.
#include "../ledger/AmbienteRegistro.h"

#include <fstream>
#include <iterator>
#include <map>

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
template <class R> R LeggiUno(const std::string& nome, long numero) {
    R record;
    ConRecord(nome, R::Lunghezza, 1, [&] { LeggiRecord(record, numero, 1); });
    return record;
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
        Stato.NumConti = 0;
    }

    void TearDown() override {
        GuastoAllaScrittura(0);
        fs::current_path(prima);
        AmbienteRegistro::TearDown();
    }

    static std::string File(const std::string& estensione) { return NomeFileConto(estensione); }
};
