#pragma once
// Immissione Carnet Assegni: a new cheque book (its ten sheets and its "CA" movement with the
// cost), the change of a book picked from the list, and its deletion.
#include "screen/Schermo.h"

#include <string>

struct Form3 {
    Schermo S{"Form3", "Immissione Carnet Assegni"};

    Controllo banca{S, TipoControllo::Etichetta, "banca"};
    Controllo NrConto{S, TipoControllo::Etichetta, "NrConto"};
    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "nr. carnet"};
    Controllo NrCarnet{S, TipoControllo::Etichetta, "NrCarnet"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Data ritiro"};
    Controllo DataCarnet{S, TipoControllo::Data, "DataCarnet"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "Costo"};
    Controllo CostoCarnet{S, TipoControllo::Campo, "CostoCarnet"};
    Controllo Label4{S, TipoControllo::Etichetta, "Label4", "dal nr."};
    Controllo NrInf{S, TipoControllo::Campo, "NrInf"};
    Controllo Label5{S, TipoControllo::Etichetta, "Label5", "al nr."};
    Controllo NrFinale{S, TipoControllo::Etichetta, "NrFinale"};
    Controllo Label6{S, TipoControllo::Etichetta, "Label6", "nr.fogli"};
    Controllo NrFogli{S, TipoControllo::Etichetta, "NrFogli", "10"};

    Controllo Salva{S, TipoControllo::Pulsante, "Salva", "Conferma"};
    Controllo Command3D1{S, TipoControllo::Pulsante, "Command3D1", "Cancella Immissione"};
    Controllo Del{S, TipoControllo::Pulsante, "Del", " Cancella "};
    Controllo Visualizza{S, TipoControllo::Pulsante, "Visualizza", "Archivio"};
    Controllo Command3D9{S, TipoControllo::Pulsante, "Command3D9", "Situazione assegni"};
    Controllo esci{S, TipoControllo::Pulsante, "esci", "Uscita"};

    Form3();
};

// Conferma: a new book, or the change of the book CarnetCorrente.
void ConfermaCarnet();
// The text of the cost in the short format of the decimals in use.
std::string CostoFormattato(double costo);
