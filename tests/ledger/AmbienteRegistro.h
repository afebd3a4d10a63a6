#pragma once
// What the register's tests share: a fresh data directory with one account "123", the headless
// platform with a fixed today, every screen made, and the account's files written and read
// back directly through the store.
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
#include <vector>

inline RecMovimento Mov(int nr, const std::string& dataOper, const std::string& dataValuta,
                        double importo, const std::string& dA, const std::string& sospeso,
                        const std::string& causale = "VS", const std::string& nrDoc = "",
                        const std::string& annullato = "N") {
    RecMovimento m;
    m.NrOper = static_cast<std::int16_t>(nr);
    m.DataOper = dataOper;
    m.DataValuta = dataValuta;
    m.Causale = causale;
    m.IMPORTO = importo;
    m.NrDoc = nrDoc;
    m.DescMovim = "movimento " + std::to_string(nr);
    m.Sospeso = sospeso;
    m.D_A = dA;
    m.Annullato = annullato;
    return m;
}

class AmbienteRegistro : public ::testing::Test {
  protected:
    PiattaformaSenzaSchermo porta;
    std::filesystem::path dir;
    std::unique_ptr<Applicazione> app;

    void SetUp() override {
        char modello[] = "/tmp/registroXXXXXX";
        dir = mkdtemp(modello);
        porta.oggi = DataCivile{5, 7, 2001};
        ImpostaPiattaforma(&porta);
        Stato = StatoApplicazione{};
        Stato.PercorsoDati = dir.string() + "/";
        Stato.PercorsoProgramma = dir.string() + "/";
        Stato.CodContoAperto = "123";
        Stato.FormatoImporti = "#,###,###,##0.00";
        Stato.NumCausali = 2;
        Stato.Causali[1].CodCausale = "VS";
        Stato.Causali[1].DescCausale = "Versamento contanti in banca";
        Stato.Causali[2].CodCausale = "PR";
        Stato.Causali[2].DescCausale = "Prelievo";
        Stato.NumConti = 1;
        Stato.Conti[1].CodConto = "123";
        Stato.IndiceConto = 1;
        app = std::make_unique<Applicazione>();
    }

    void TearDown() override {
        app.reset();
        ChiudiTutti();
        ImpostaPiattaforma(nullptr);
        std::filesystem::remove_all(dir);
    }

    std::string File(const std::string& estensione) const {
        return dir.string() + "/123" + estensione;
    }

    // The movements as records 1 onwards of .MOV, and their count in .MOR.
    void ScriviMovimenti(const std::vector<RecMovimento>& movimenti, short contatore = -1) {
        ApriRecord(File(".MOV"), RecMovimento::Lunghezza, 1);
        for (std::size_t i = 0; i < movimenti.size(); ++i)
            ScriviRecord(movimenti[i], static_cast<long>(i + 1), 1);
        ChiudiRecord(1);
        ScriviContatore(File(".MOR"),
                        contatore < 0 ? static_cast<short>(movimenti.size()) : contatore);
    }

    void ScriviRiporto(double importo) {
        RecRiporto r;
        r.DataRiporto = "31/12/2000";
        r.ImportoRiporto = importo;
        ApriRecord(File(".RIP"), RecRiporto::Lunghezza, 1);
        ScriviRecord(r, 1, 1);
        ChiudiRecord(1);
    }

    // Every record of a file of movements (.MOV or .Ord), to its end.
    std::vector<RecMovimento> Leggi(const std::string& estensione) const {
        auto quanti = std::filesystem::file_size(File(estensione)) / RecMovimento::Lunghezza;
        std::vector<RecMovimento> letti(quanti + 1);
        ApriRecord(File(estensione), RecMovimento::Lunghezza, 1);
        LeggiRecords(letti, 1, static_cast<long>(quanti), 1);
        ChiudiRecord(1);
        letti.erase(letti.begin());
        return letti;
    }

    RecTotali LeggiTotali() const {
        RecTotali t;
        ApriRecord(File(".TOT"), RecTotali::Lunghezza, 1);
        LeggiRecord(t, 1, 1);
        ChiudiRecord(1);
        return t;
    }

    // Every file of the data directory with its bytes, to compare a whole state with a later one.
    std::map<std::string, std::string> Istantanea() const {
        std::map<std::string, std::string> file;
        for (const auto& e : std::filesystem::directory_iterator(dir)) {
            std::ifstream in(e.path(), std::ios::binary);
            file[e.path().filename().string()] = {std::istreambuf_iterator<char>(in), {}};
        }
        return file;
    }

    static std::vector<int> Numeri(const std::vector<RecMovimento>& movimenti) {
        std::vector<int> numeri;
        for (const RecMovimento& m : movimenti)
            numeri.push_back(m.NrOper);
        return numeri;
    }

    // The numbers of the movements in a list, read back from columns 32 to 35.
    static std::vector<int> NumeriInLista(const Controllo& lista) {
        std::vector<int> numeri;
        for (const std::string& riga : lista.Righe())
            numeri.push_back(std::stoi(riga.substr(31, 4)));
        return numeri;
    }
};
