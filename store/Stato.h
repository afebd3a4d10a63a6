#pragma once
// The application state: one block that every screen reads and writes directly. It owns the
// tables of the open account and of the masters while they are loaded; the files own the truth.
#include "store/Campi.h"
#include "store/RecordAnagrafe.h"
#include "store/RecordAssegni.h"
#include "store/RecordCondizioni.h"
#include "store/RecordRegistro.h"
#include "store/Tabella.h"

#include <string>

struct StatoApplicazione {
    // Paths and format. Both directories end with "/".
    std::string PercorsoProgramma;
    std::string PercorsoDati;
    std::string FormatoImporti;
    double Cambio = 1;

    // The open account.
    Fisso<12> CodContoAperto;
    short IndiceConto = 0;
    short ContoAperto = 0;
    Tabella<RecMovimento> Movimenti{500};
    short NumMovimenti = 0;
    short MovimentoCorrente = 0;
    Fisso<10> PrimaDataOperazione, UltimaDataOperazione, PrimaDataValuta, UltimaDataValuta;
    double SaldoAllineamento = 0, SaldoValuta = 0, SaldoOperazione = 0, SaldoUltimaData = 0;
    RecTotali Totali;
    Tabella<RecRiporto> Riporto{1};
    Tabella<RecCarnet> Carnet{500};
    short NumCarnet = 0;
    Tabella<RecAssegno> Assegni{1500};
    short NumAssegni = 0;
    // Its conditions for interest and charges, read again by each screen that uses them.
    RecTassiCreditori TassiCreditori;
    RecTassiDebitori TassiDebitori;
    RecOpzioniCalcolo OpzioniCalcolo;
    RecOneriPassivi OneriPassivi;
    RecSpeseVarie SpeseVarie;
    // The cheque screens: the book loaded into Form3 for a change (0: a new one), the sheet in
    // work in Form15, who opened the list Form14 (0 Form3, 1 Form15, 4 Form9), and 1 once Form15
    // works on a book picked from the list.
    short CarnetCorrente = 0;
    short FoglioCorrente = 0;
    short ChiamanteCarnet = 0;
    short CarnetScelto = 0;

    // Shared masters, loaded at the start.
    Tabella<RecConto> Conti{100};
    short NumConti = 0;
    Tabella<RecCausale> Causali{120};
    short NumCausali = 0;
    short IndiceCausale = 0;
    Tabella<RecValuta> Valute{15};
    RecImposta Imposta;
    RecColori Colori;
    RecAccesso Accesso;

    // Signal between screens: 1 tells the caller that the called screen was cancelled or that
    // its next step is to be skipped.
    short FlagOperazione = 0;
    // Who called the causale picker FORM12: 1 Form4, 2 Form20, anything else Form9.
    short ChiamanteCausale = 0;
    // 1 while the list of movements Form11 is up, so that the entry screen refills it.
    short ElencoAperto = 0;
};

extern StatoApplicazione Stato;
