#include "shell/Valuta.h"

#include "ledger/Registro.h"
#include "refdata/Valute.h"
#include "shell/Applicazione.h"
#include "store/FileRecord.h"
#include "store/Formato.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <filesystem>
#include <string>

namespace {
// After a change of rate the availability goes through two whole numbers, so it shows no
// decimals until the balances are next rebuilt.
void RidisegnaAlCambio() {
    MDIForm1& f = App().MDIForm1;
    ElencaPerOperazione();
    RidisegnaSaldi();
    double fido = Stato.Conti[Stato.IndiceConto].Fido;
    f.Saldi(2).SetText(Format(fido * Stato.Cambio, Stato.FormatoImporti));
    int disponibile = Intero32(fido * Stato.Cambio);
    disponibile = Intero32(disponibile + Stato.SaldoOperazione * Stato.Cambio);
    f.Saldi(5).SetText(Format(disponibile, Stato.FormatoImporti));
}
} // namespace

void LeggiValute() {
    LeggiTabellaValute();
    Controllo& combo = App().MDIForm1.Combo1;
    for (long i = 1; i <= 15; ++i)
        combo.AddItem(TestoValuta(Stato.Valute[i]));
}

void SceltaValuta() {
    MDIForm1& f = App().MDIForm1;
    std::string bandiera = NomeFileProgramma(std::to_string(f.Combo1.ListIndex() + 1) + ".ICO");
    if (!std::filesystem::is_regular_file(bandiera)) Errore(53);
    f.Image1.SetText(bandiera);

    // A line of a record never written reads "-" once trimmed, which no record's text equals.
    if (short n = CercaValuta(Trim(f.Combo1.Text()))) Stato.Cambio = Stato.Valute[n].Cambio;
    if (Stato.ContoAperto == 1) RidisegnaAlCambio();
}

void ValutaIniziale() {
    Controllo& combo = App().MDIForm1.Combo1;
    std::string predefinita = Trim(Stato.Imposta.Combo1);
    if (predefinita.empty()) {
        combo.SetListIndex(0);
        return;
    }
    for (int i = 0; i < combo.ListCount(); ++i)
        if (Trim(combo.List(i)) == predefinita) {
            combo.SetListIndex(i);
            break;
        }
    // Only the name counts here: "Franco - Francia" takes the rate of the first "Franco",
    // Belgium's, until the user chooses again. A default without "-" asks for the text's first
    // -1 characters, which fails as the classic Left does.
    auto trattino = predefinita.find('-');
    if (trattino == std::string::npos) Errore(5);
    std::string nome = Trim(predefinita.substr(0, trattino));
    for (long i = 1; i <= 15; ++i)
        if (Trim(Stato.Valute[i].Nome) == nome) {
            Stato.Cambio = Stato.Valute[i].Cambio;
            break;
        }
}
