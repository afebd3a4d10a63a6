#pragma once
// Immissione dati conto: a new account, or the change of one picked from the list, and its
// deletion; the choosers of drive and directory pick the data directory the accounts live in.
#include "refdata/ErroreDisco.h"
#include "screen/Schermo.h"
#include "store/RecordAnagrafe.h"

struct Form2 {
    Schermo S{"Form2", "Immissione dati conto"};

    // The fields, in the order of typing.
    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "Nr. Conto"};
    Controllo CodConto{S, TipoControllo::Campo, "CodConto"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Tipo di conto"};
    Controllo TipoConto{S, TipoControllo::Campo, "TipoConto"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "Banca"};
    Controllo NomeBanca{S, TipoControllo::Campo, "NomeBanca"};
    Controllo Label4{S, TipoControllo::Etichetta, "Label4", "Indirizzo"};
    Controllo IndBanca{S, TipoControllo::Campo, "IndBanca"};
    Controllo Label5{S, TipoControllo::Etichetta, "Label5", "C.A.P."};
    Controllo CapBanca{S, TipoControllo::Campo, "CapBanca"};
    Controllo Label6{S, TipoControllo::Etichetta, "Label6", "Località"};
    Controllo LocBanca{S, TipoControllo::Campo, "LocBanca"};
    Controllo Label7{S, TipoControllo::Etichetta, "Label7", "Prov."};
    Controllo ProvBanca{S, TipoControllo::Campo, "ProvBanca"};
    Controllo Label8{S, TipoControllo::Etichetta, "Label8", "Cod. A.B.I."};
    Controllo abi{S, TipoControllo::Campo, "abi"};
    Controllo Label9{S, TipoControllo::Etichetta, "Label9", "Cod. C.A.B."};
    Controllo Cab{S, TipoControllo::Campo, "Cab"};
    Controllo Label10{S, TipoControllo::Etichetta, "Label10", " ID Banca"};
    Controllo id{S, TipoControllo::Campo, "id"};
    Controllo Label11{S, TipoControllo::Etichetta, "Label11", "Fido"};
    Controllo Fido{S, TipoControllo::Campo, "Fido"};

    Controllo AddAnItem{S, TipoControllo::Pulsante, "AddAnItem", "Conferma"};
    Controllo CLR{S, TipoControllo::Pulsante, "CLR", "Elimina immissione"};
    Controllo Del{S, TipoControllo::Pulsante, "Del", "Cancella conto"};
    Controllo esci{S, TipoControllo::Pulsante, "esci", "Uscita"};

    // Where the accounts are, and the accounts found there.
    Controllo Drive1{S, TipoControllo::Combo, "Drive1"};
    Controllo Dir1{S, TipoControllo::Lista, "Dir1"};
    Controllo NomeFile{S, TipoControllo::Etichetta, "NomeFile", "Percorso: "};
    Controllo ListaConti{S, TipoControllo::Lista, "ListaConti"};

    SceltaDirectory Scelta{Drive1, Dir1, {}, {}, {}};

    Form2();
};

// "Conferma": checks the number, then stores a new account or the change of the selected one.
void ConfermaConto();

// "Elimina immissione": empties the fields but Cab and id and returns to a new account.
void AnnullaImmissione();

// The fields of Form2 into a record, each cut or padded to its width; Fido typed in the
// currency in use is kept in Euro, 0 when empty. The record's number is left alone.
void CampiInConto(const Form2& f, RecConto& conto);

// The fields emptied: all eleven, or all but Cab and id, which "Elimina immissione" and a new
// account leave for the next one.
void SvuotaCampiConto(Form2& f, bool ancheCabId);

// The key filters of the account's fields, which Form10 shares: a dropped key beeps.
void FiltroNumeroConto(int& tasto);    // drops ".", "/" and "\", which a file name can't hold
void FiltroCifre(int& tasto);          // keeps digits and Backspace only
