#pragma once
// The open account's environment, whose folder is the current directory, the data directory
// "./" and the program directory "prog/", so that "./" and the 10-character stem fill exactly
// the 12 characters of the owner field of .chi.
#include "tests/Ambiente.h"

#include "ledger/CaricaConto.h"
#include "ledger/Registro.h"

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

    // The account loaded from its files, as opening it does.
    static void Apri() {
        CaricaConto();
        ElencaPerOperazione();
        ScriviOrd();
    }
};
