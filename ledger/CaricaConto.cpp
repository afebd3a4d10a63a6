#include "ledger/CaricaConto.h"

#include "cheques/ElenchiAssegni.h"
#include "ledger/Registro.h"
#include "store/Date.h"
#include "store/FileRecord.h"
#include "store/Stato.h"
#include "store/Testo.h"

void CaricaConto() {
    Stato.NumMovimenti = LeggiContatore(NomeFileConto(".MOR"));
    // Room for 500 new movements before the next load.
    Stato.Movimenti.Ridimensiona(Stato.NumMovimenti + 500);
    ConRecord(NomeFileConto(".MOV"), RecMovimento::Lunghezza, 1,
              [] { LeggiRecords(Stato.Movimenti.righe, 1, Stato.NumMovimenti, 1); });
    ConRecord(NomeFileConto(".RIP"), RecRiporto::Lunghezza, 1,
              [] { LeggiRecord(Stato.Riporto[1], 1, 1); });

    ConRecord(NomeFileConto(".TOT"), RecTotali::Lunghezza, 1,
              [] { LeggiRecord(Stato.Totali, 1, 1); });
    CampiTotali(2, [](auto& lavoro, const auto& totali) { lavoro = totali; });
    if (Val(Stato.PrimaDataOperazione) == 0) Stato.PrimaDataOperazione = Oggi();
    if (Val(Stato.UltimaDataOperazione) == 0) Stato.UltimaDataOperazione = Oggi();

    // RicalcolaTotali's rebuild, over the table that was just read from its files.
    RicalcolaDaMovimenti();

    Stato.NumCarnet = LeggiContatore(NomeFileConto(".NRC"));
    ConRecord(NomeFileConto(".CAR"), RecCarnet::Lunghezza, 1,
              [] { LeggiRecords(Stato.Carnet.righe, 1, Stato.NumCarnet, 1); });
    Stato.NumAssegni = LeggiContatore(NomeFileConto(".NRF"));
    ConRecord(NomeFileConto(".FOG"), RecAssegno::Lunghezza, 1,
              [] { LeggiRecords(Stato.Assegni.righe, 1, Stato.NumAssegni, 1); });

    ElencaAnnullati();
    ElencaCarnet();
    ElencaSituazione();
}
