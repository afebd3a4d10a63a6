#pragma once
// Form9, the entry screen that stays open on an account: the entry line of a movement, the
// picture buttons, the two lists of the register and the selection of dates above them.
#include "screen/Schermo.h"

#include <string>

struct Form9 {
    Schermo S{"Form9", "Immissione / Modifica Movimenti"};

    // The entry line, in the order of typing.
    Controllo Label1{S, TipoControllo::Etichetta, "Label1", "Num.Op."};
    Controllo NrOper{S, TipoControllo::Etichetta, "NrOper"};
    Controllo Label2{S, TipoControllo::Etichetta, "Label2", "Data oper."};
    Controllo DataOper{S, TipoControllo::Data, "DataOper"};
    Controllo Label3{S, TipoControllo::Etichetta, "Label3", "Data Valuta"};
    Controllo DataValuta{S, TipoControllo::Data, "DataValuta"};
    Controllo Label4{S, TipoControllo::Etichetta, "Label4", "Caus."};
    Controllo Causale{S, TipoControllo::Campo, "Causale"};
    Controllo Label5{S, TipoControllo::Etichetta, "Label5", "Descrizione causale"};
    Controllo DescrCausale{S, TipoControllo::Etichetta, "DescrCausale"};
    Controllo Label6{S, TipoControllo::Etichetta, "Label6", "Sos."};
    Controllo Sospeso{S, TipoControllo::Etichetta, "Sospeso"};
    Controllo Label7{S, TipoControllo::Etichetta, "Label7", "E/U"};
    Controllo D_A{S, TipoControllo::Etichetta, "D_A"};
    Controllo Label8{S, TipoControllo::Etichetta, "Label8", "Importo"};
    Controllo IMPORTO{S, TipoControllo::Campo, "IMPORTO"};
    Controllo Label9{S, TipoControllo::Etichetta, "Label9", "Nr. Doc."};
    Controllo NrDoc{S, TipoControllo::Campo, "NrDoc"};
    Controllo Label11{S, TipoControllo::Etichetta, "Label11", "Descrizione"};
    Controllo DescMovim{S, TipoControllo::Campo, "DescMovim"};

    // The picture buttons.
    Controllo OK{S, TipoControllo::Pulsante, "OK", "Conferma"};
    Controllo pulisci{S, TipoControllo::Pulsante, "pulisci", "Pulisci"};
    Controllo Del{S, TipoControllo::Pulsante, "Del", "Del"};
    Controllo Esc{S, TipoControllo::Pulsante, "Esc", "Uscita"};
    Controllo Command3D1{S, TipoControllo::Pulsante, "Command3D1", "Causali"};
    Controllo Assegno{S, TipoControllo::Pulsante, "Assegno", "Assegni"};
    Controllo BottCarnet{S, TipoControllo::Pulsante, "BottCarnet", "Carnet"};
    Controllo SSCommand1{S, TipoControllo::Pulsante, "SSCommand1", "Archivio carnet"};
    Controllo AssAnnull{S, TipoControllo::Pulsante, "AssAnnull", "Annullati"};

    // The list area: the two lists are alternatives, one on view at a time.
    Controllo Label25{S, TipoControllo::Etichetta, "Label25",
                      "Elenco Movimenti per data operazione"};
    Controllo Label13{S, TipoControllo::Etichetta, "Label13", "Data Op."};
    Controllo Label14{S, TipoControllo::Etichetta, "Label14", "Data val."};
    Controllo Label18{S, TipoControllo::Etichetta, "Label18", "Nr.op."};
    Controllo Label15{S, TipoControllo::Etichetta, "Label15", "Causale"};
    Controllo Label19{S, TipoControllo::Etichetta, "Label19", "Sos."};
    Controllo Label20{S, TipoControllo::Etichetta, "Label20", "E/U"};
    Controllo Label21{S, TipoControllo::Etichetta, "Label21", "Nr. Doc."};
    Controllo Label22{S, TipoControllo::Etichetta, "Label22", "Importo"};
    Controllo Label10{S, TipoControllo::Etichetta, "Label10", "V."};
    Controllo ElencoMovim{S, TipoControllo::Lista, "ElencoMovim"};
    Controllo elencoValuta{S, TipoControllo::Lista, "elencoValuta"};

    // The selection of dates and the order of the list.
    Controllo Label12{S, TipoControllo::Etichetta, "Label12", "Dal"};
    Controllo DataInizSel{S, TipoControllo::Data, "DataInizSel"};
    Controllo Label16{S, TipoControllo::Etichetta, "Label16", "Al"};
    Controllo DataFineSel{S, TipoControllo::Data, "DataFineSel"};
    Controllo Ag{S, TipoControllo::Pulsante, "Ag", "OK"};
    Controllo Command3{S, TipoControllo::Pulsante, "Command3", "Tutti"};
    Controllo Command1{S, TipoControllo::Pulsante, "Command1", "data op."};
    Controllo Command2{S, TipoControllo::Pulsante, "Command2", "data val."};

    // The keys typed into each date of the line since it took the focus: four of them complete
    // the year.
    std::string TastiDataOper, TastiDataValuta;

    Form9();
};

// A date field checked as the screens check one: taken apart and verified, then written again as
// "DD/MM/YYYY", or emptied after the message of a bad date. True for a good date.
bool ControllaCampoData(Controllo& campo);
