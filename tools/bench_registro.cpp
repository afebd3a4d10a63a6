// The register under load, for tools/bench.sh.
//
//   bench_registro prepara DIR   writes into the program directory DIR (already started once)
//                                account "1" with 32767 movements, the start account of
//                                Imposta.DAT, and account "2" with 50 places left
//   bench_registro aggiungi DIR  opens account "2" and times 50 new movements, each with the
//                                whole rewrite of .Ord; prints the mean in milliseconds
//   bench_registro staffa DIR    opens account "1" and times 50 presses of `via` on the year
//                                2000, which holds more than the 1000 movements a ladder takes
//   bench_registro interessi DIR the same with `Interessi`
//   bench_registro diario FILE   writes the movements of account "1" as a journal of `ledger`
#include "interest/Staffa.h"
#include "ledger/Registro.h"
#include "screen/PiattaformaSenzaSchermo.h"
#include "shell/Applicazione.h"
#include "store/Date.h"
#include "store/FileRecord.h"
#include "store/Stato.h"
#include "store/Testo.h"
#include "tools/Memoria.h"

#include <chrono>
#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <vector>

// Far fewer page faults at the open of a big account; before main, as the state's tables are.
[[gnu::constructor(101)]] static void Memoria() { PreparaMemoria(); }

namespace {
constexpr short Pieno = 32767;
constexpr int Aggiunte = 50;

// A movement of a plausible account: about four a day from 1990 on, entered roughly in date
// order, value dates a few days after.
RecMovimento Movimento(int nr) {
    static const char* const causali[] = {"AS", "CA", "GC", "VS", "PR"};
    long giorno = GiornoCalendario("01/01/1990") + nr / 4 - nr % 7;
    RecMovimento m;
    m.NrOper = static_cast<std::int16_t>(nr);
    m.DataOper = TestoDaGiorno(giorno);
    m.DataValuta = TestoDaGiorno(giorno + nr % 5);
    m.Causale = causali[nr % 5];
    m.IMPORTO = 10 + (nr * 7919 % 100000) / 100.0;
    m.NrDoc = std::to_string(nr % 1000);
    m.DescMovim = "movimento di prova " + std::to_string(nr);
    m.Sospeso = nr % 3 == 0 ? "S" : "N";
    m.D_A = nr % 2 == 0 ? "U" : "E";
    m.Annullato = "N";
    return m;
}

void ScriviConto(short numero, short movimenti) {
    Stato.CodContoAperto = std::to_string(numero);
    ConRecord(NomeFileConto(".MOV"), RecMovimento::Lunghezza, 1, [&] {
        ScriviRecords([](std::size_t k) { return Movimento(static_cast<int>(k) + 1); },
                      static_cast<std::size_t>(movimenti), 1, 1);
    });
    ScriviContatore(NomeFileConto(".MOR"), movimenti);

    RecConto conto;
    conto.Numero = numero;
    conto.CodConto = std::to_string(numero);
    conto.NomeBanca = "Banca di prova " + std::to_string(numero);
    conto.Fido = 5000;
    ConRecord(NomeFileDati("Conti.dat"), RecConto::Lunghezza, 1,
              [&] { ScriviRecord(conto, numero, 1); });
}

// The same movements, one transaction each, in the plain-text journal that `ledger` reads.
bool ScriviDiario(const char* percorso) {
    std::FILE* diario = std::fopen(percorso, "w");
    if (!diario) return false;
    for (int nr = 1; nr <= Pieno; ++nr) {
        RecMovimento m = Movimento(nr);
        PartiData d = DividiData(m.DataOper);
        double importo = m.D_A == "U" ? -m.IMPORTO : m.IMPORTO;
        std::fprintf(diario, "%04d/%02d/%02d %s\n    Attivo:Banca  %.2f EUR\n    Causali:%s\n\n",
                     d.anno, d.mese, d.giorno, Trim(m.DescMovim).c_str(), importo,
                     Trim(m.Causale).c_str());
    }
    return std::fclose(diario) == 0;
}

void Prepara() {
    Stato.PercorsoDati = Stato.PercorsoProgramma + "dati/";
    ScriviConto(1, Pieno);
    ScriviConto(2, Pieno - Aggiunte);
    ScriviContatore(NomeFileDati("RecConti.dat"), 2);

    RecImposta imposta;
    ConRecord(NomeFileProgramma("Imposta.DAT"), RecImposta::Lunghezza, 1,
              [&] { LeggiRecord(imposta, 1, 1); });
    imposta.contAvv = "1";
    imposta.decimali = 2;
    ConRecord(NomeFileProgramma("Imposta.DAT"), RecImposta::Lunghezza, 1,
              [&] { ScriviRecord(imposta, 1, 1); });
}

// The mean of 50 runs of `passo`, in milliseconds.
template <class F> double Media(F&& passo) {
    auto inizio = std::chrono::steady_clock::now();
    for (int k = 0; k < Aggiunte; ++k) passo();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - inizio)
               .count() /
           Aggiunte;
}

// Opens account `numero` of those Prepara wrote, as Form9 does.
void ApriConto(Applicazione& app, short numero) {
    Stato.PercorsoDati = Stato.PercorsoProgramma + "dati/";
    Stato.FormatoImporti = "#,###,###,##0.00";
    Stato.NumConti = numero;
    Stato.Conti[numero].CodConto = std::to_string(numero);
    Stato.Conti[numero].Fido = 5000;
    Stato.IndiceConto = numero;
    Stato.CodContoAperto = std::to_string(numero);
    app.Form9.S.Show();
}

void Aggiungi() {
    Applicazione app;
    ApriConto(app, 2);

    std::printf("%.2f\n", Media([] {
                    Stato.NumMovimenti += 1;
                    Stato.Movimenti[Stato.NumMovimenti] = Movimento(Stato.NumMovimenti);
                    AggiungiMovimento();
                }));
}

// The ladder screen on the year 2000 of account "1", with its conditions.
template <class F> void StaffaAnno(F&& premi) {
    Applicazione app;
    ApriConto(app, 1);
    Staffa& f = app.Staffa;
    f.S.Show();
    Stato.OpzioniCalcolo.Divisore = 1;
    f.dal.SetText("01/01/2000");
    f.al.SetText("31/12/2000");
    Stato.TassiCreditori.DataC1 = Stato.TassiDebitori.DATAD1 = "01/01/1990";
    Stato.TassiCreditori.PerC1 = 1;
    Stato.TassiDebitori.PerD1 = 8;
    Stato.TassiDebitori.PerD6 = 12;
    std::printf("%.2f\n", Media([&f, &premi] { premi(f); }));
}
} // namespace

int main(int argc, char** argv) {
    std::string comando = argc == 3 ? argv[1] : "";
    if (comando == "diario") return ScriviDiario(argv[2]) ? 0 : 1;
    if (comando != "prepara" && comando != "aggiungi" && comando != "staffa" &&
        comando != "interessi") {
        std::fprintf(stderr,
                     "uso: bench_registro prepara|aggiungi|staffa|interessi CARTELLA | diario FILE\n");
        return 2;
    }
    PiattaformaSenzaSchermo porta;
    ImpostaPiattaforma(&porta);
    Stato.PercorsoProgramma = std::string(argv[2]) + "/";
    const std::map<std::string, std::function<void()>> comandi = {
        {"prepara", Prepara},
        {"aggiungi", Aggiungi},
        {"staffa", [] { StaffaAnno([](Staffa& f) { f.via.Clicca(); }); }},
        {"interessi", [] { StaffaAnno([](Staffa& f) { f.Interessi.Clicca(); }); }},
    };
    bool riuscito = EseguiEvento(comandi.at(comando));
    for (const std::string& messaggio : porta.messaggi)
        std::fprintf(stderr, "%s\n", messaggio.c_str());
    ImpostaPiattaforma(nullptr);
    return riuscito ? 0 : 1;
}
