#pragma once
// Gestione Assegni: the sheets of one book; a cheque issued on a sheet books its "AS" movement,
// a cheque already issued is changed in place, an amount left at "0" records a cancelled one.
#include "screen/Schermo.h"
#include "store/Campi.h"
#include "store/Tabella.h"

#include <cstdint>

// A row of the sheets shown, as ElencaFogli fills it.
struct RigaFoglio {
    Fisso<10> DataAssegno;
    double Importo = 0; // already times Cambio
    Fisso<20> traente;
    std::int32_t NrAssegno = 0;
    std::int16_t NrFoglio = 0;
    std::int16_t NrMovimento = 0;
};

struct Form15 {
    Schermo S{"Form15", "Gestione Assegni"};

    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "Conto nr."};
    Controllo Banca{S, TipoControllo::Etichetta, "Banca"};
    Controllo NrConto{S, TipoControllo::Etichetta, "NrConto"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Nr. Carnet"};
    Controllo NrCarnet{S, TipoControllo::Etichetta, "NrCarnet"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "fogli"};
    Controllo NrFogliCarnet{S, TipoControllo::Etichetta, "NrFogliCarnet"};
    Controllo Label4{S, TipoControllo::Etichetta, "Label4", "Ass. Numero"};
    Controllo NrAssegno{S, TipoControllo::Etichetta, "NrAssegno"};
    Controllo Label5{S, TipoControllo::Etichetta, "Label5", "Data"};
    Controllo DataAssegno{S, TipoControllo::Data, "DataAssegno"};
    Controllo Label6{S, TipoControllo::Etichetta, "Label6", "Importo"};
    Controllo IMPORTO{S, TipoControllo::Campo, "IMPORTO"};
    Controllo Label7{S, TipoControllo::Etichetta, "Label7", "a favore di"};
    Controllo traente{S, TipoControllo::Campo, "traente"};
    Controllo Label8{S, TipoControllo::Etichetta, "Label8", "Note"};
    Controllo NoteAss{S, TipoControllo::Campo, "NoteAss"};
    Controllo Label9{S, TipoControllo::Etichetta, "Label9", "Elenco Assegni"};
    Controllo List1{S, TipoControllo::Lista, "List1"};

    Controllo Salva{S, TipoControllo::Pulsante, "Salva", "Conferma"};
    Controllo Command3D1{S, TipoControllo::Pulsante, "Command3D1", "Archivio carnet"};
    Controllo Command3D9{S, TipoControllo::Pulsante, "Command3D9", "Situazione assegna"};
    Controllo Command3D8{S, TipoControllo::Pulsante, "Command3D8", "Uscita"};

    // The sheets of the book shown, from row 1, and how many rows the last refill filled.
    Tabella<RigaFoglio> FogliCarnet{30};
    int RigheFogli = 0;

    Form15();
};

// List1 and FogliCarnet refilled with the sheets of the book in the label NrCarnet.
void ElencaFogli();
// The sheet of the selected line into the fields; it becomes FoglioCorrente.
void CaricaAssegno();
// The first sheet of FogliCarnet not yet issued into NrAssegno and FoglioCorrente; with all
// issued both stay as they are.
void PrimoFoglioLibero();
// Conferma: the sheet FoglioCorrente issued, changed or cancelled.
void ConfermaAssegno();
