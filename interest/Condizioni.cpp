#include "interest/Condizioni.h"

#include "store/FileRecord.h"
#include "store/Formato.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <cstdio>

namespace {
template <class R> void Leggi(const std::string& estensione, R& record) {
    ConRecord(NomeFileConto(estensione), R::Lunghezza, 1, [&] { LeggiRecord(record, 1, 1); });
}
template <class R> void Scrivi(const std::string& estensione, const R& record) {
    ConRecord(NomeFileConto(estensione), R::Lunghezza, 1, [&] { ScriviRecord(record, 1, 1); });
}
} // namespace

void CaricaCondizioni() {
    Leggi(".Iat", Stato.TassiCreditori);
    Leggi(".Ipa", Stato.TassiDebitori);
    Leggi(".Opz", Stato.OpzioniCalcolo);
    Leggi(".Onp", Stato.OneriPassivi);
    Leggi(".spe", Stato.SpeseVarie);
}

void SalvaCondizioni() {
    Scrivi(".Iat", Stato.TassiCreditori);
    Scrivi(".Ipa", Stato.TassiDebitori);
    Scrivi(".Opz", Stato.OpzioniCalcolo);
    Scrivi(".Onp", Stato.OneriPassivi);
    Scrivi(".spe", Stato.SpeseVarie);
}

std::string TestoTasso(float tasso) {
    // Seven significant digits are what a single shows; the double read back from them is the
    // short decimal the user typed, which the plain format then writes without noise.
    char cifre[32];
    std::snprintf(cifre, sizeof cifre, "%.7g", static_cast<double>(tasso));
    return Format(Val(cifre), "");
}
