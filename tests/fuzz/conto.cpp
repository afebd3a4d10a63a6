// The opening of an account on random files of its own: movements and their counter, balances,
// carried-forward balance, cheque books and cheques with their counters. The account "12" is
// opened by the start, as the stored start account, and the entry screen loads it.
#include "tests/fuzz/Fuzz.h"

#include "store/RecordAnagrafe.h"

namespace {
// An installation started once, with the account "12" as start account.
fs::path Installa() {
    const fs::path programma = CartellaFuzz() / "prog";
    fs::create_directories(programma);
    ScriviBandiere(programma);
    AvviaEControlla(programma);
    RecImposta imposta;
    imposta.contAvv = "12";
    imposta.decimali = 2;
    ConRecord((programma / "Imposta.DAT").string(), RecImposta::Lunghezza, 1,
              [&] { ScriviRecord(imposta, 1, 1); });
    RecConto conto;
    conto.Numero = 1;
    conto.CodConto = "12";
    conto.NomeBanca = "Banca";
    ConRecord((programma / "dati/Conti.dat").string(), RecConto::Lunghezza, 1,
              [&] { ScriviRecord(conto, 1, 1); });
    ScriviContatore((programma / "dati/RecConti.dat").string(), 1);
    return programma;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti) {
    static const fs::path programma = Installa();
    const fs::path dati = programma / "dati";
    for (const std::string& file : FileCheIniziano(dati.string(), "12."))
        fs::remove(file);
    std::vector<fs::path> file;
    for (const char* estensione : {".MOV", ".MOR", ".TOT", ".RIP", ".CAR", ".NRC", ".FOG", ".NRF"})
        file.push_back(dati / (std::string("12") + estensione));
    ScriviFile(byte, quanti, file);
    AvviaEControlla(programma);
    return 0;
}
