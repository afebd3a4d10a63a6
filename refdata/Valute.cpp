#include "refdata/Valute.h"

#include "store/FileRecord.h"
#include "store/Guasto.h"
#include "store/Stato.h"
#include "store/Testo.h"

std::string TestoValuta(const RecValuta& valuta) {
    return Trim(valuta.Nome) + " - " + Trim(valuta.Paese);
}

short CercaValuta(const std::string& testo) {
    for (short n = 1; n <= 15; ++n)
        if (TestoValuta(Stato.Valute[n]) == testo) return n;
    return 0;
}

void LeggiTabellaValute() {
    ApriRecord(NomeFileProgramma("Valute.DAT"), RecValuta::Lunghezza, 1);
    LeggiRecords(Stato.Valute.righe, 1, 15, 1);
    ChiudiRecord(1);
}

void ScriviValuta(short n) {
    const RecValuta& valuta = Stato.Valute[n];
    ApriRecord(NomeFileProgramma("Valute.DAT"), RecValuta::Lunghezza, 1);
    ScriviRecord(valuta, n, 1);
    ChiudiRecord(1);
}

double ImportoInEuro(double digitato) {
    return Dividi(digitato, Stato.Cambio);
}
