#pragma once
// The register of the open account: the lines of the two lists of Form9, the order of .Ord that
// follows from them, the extreme dates, and the four balances with their panel on the main
// window.
#include "store/RecordRegistro.h"
#include "store/Stato.h"

#include <string>

// The line of a movement in ElencoMovim or elencoValuta. Its key is the date number of
// `dataChiave` (DataOper or DataValuta), so the lists, compared as text, are in date order;
// columns 32 to 35 give the number of the movement back. `marcaAnnullato` adds " *" for a
// movement marked for elimination (the refill by value date only).
std::string RigaElenco(const RecMovimento& movimento, const std::string& dataChiave,
                       bool marcaAnnullato = false);

// The number of the movement in columns 32 to 35 of a line; 0 for the empty text.
int NumeroDaRiga(const std::string& riga);

// Rewrites .Ord in the order of ElencoMovim, whatever list is on view, followed by one blank
// record.
void ScriviOrd();

// Adds one movement to the working balances (or takes it out), then writes .TOT. Only the
// adding redraws the panel.
void ApplicaMovimento(const std::string& dataValuta, const std::string& dataOper, double importo,
                      const std::string& dA, const std::string& sospeso);
void StornaMovimento(const std::string& dataValuta, const std::string& dataOper, double importo,
                     const std::string& dA, const std::string& sospeso);

// The working balances, then `date` of the working dates (0, the 2 of operation or all 4), each
// with its field of the buffer of .TOT: `copia(lavoro, totali)`, for the copies either way.
template <class F> void CampiTotali(int date, F&& copia) {
    RecTotali& t = Stato.Totali;
    copia(Stato.SaldoAllineamento, t.SaldoAllineamento);
    copia(Stato.SaldoValuta, t.SaldoValuta);
    copia(Stato.SaldoOperazione, t.SaldoOperazione);
    copia(Stato.SaldoUltimaData, t.SaldoUltimaData);
    if (date < 2) return;
    copia(Stato.PrimaDataOperazione, t.PrimaDataOperazione);
    copia(Stato.UltimaDataOperazione, t.UltimaDataOperazione);
    if (date < 4) return;
    copia(Stato.PrimaDataValuta, t.PrimaDataValuta);
    copia(Stato.UltimaDataValuta, t.UltimaDataValuta);
}

// Rebuilds the balances from .MOR, .MOV and the carried-forward balance, and writes .TOT.
void RicalcolaTotali();
// The same rebuild over Movimenti as it stands, for CaricaConto, which has just read the table
// from those files: a second read of 32767 movements would give the same table.
void RicalcolaDaMovimenti();

// Stores Movimenti[NumMovimenti], which the caller has filled and counted: .MOV, .MOR, the line
// in the list on view, .Ord, the balances and the cheque counts.
void AggiungiMovimento();

// The first and last dates recomputed from Movimenti, shown in the selection fields.
void EstremiOperazione();
void EstremiValuta();
// Widens the last operation date by the date typed in Form9's DataOper.
void AllargaEstremi();

// Refill ElencoMovim, elencoValuta with the movements between the two selection dates.
void ElencaPerOperazione();
void ElencaPerValuta();

// The panel of the main window from the working balances: Saldi(0), (1), (3), (4), UltimaData
// and the availability Saldi(5).
void RidisegnaSaldi();
