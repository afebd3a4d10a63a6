#pragma once
// The conditions of an account for interest and charges: one record in each of .Iat, .Ipa,
// .Opz, .Onp and .spe. Rates and percentages are 32-bit floats; an unused date slot holds the
// empty mask "__/__/____".
#include "store/Campi.h"

#include <cstddef>
#include <cstdint>

// Credit rates, each from its date on.
struct RecTassiCreditori {
    static constexpr std::size_t Lunghezza = 70;
    Fisso<10> DataC1, DataC2, DataC3, DataC4, DataC5;
    float PerC1 = 0, PerC2 = 0, PerC3 = 0, PerC4 = 0, PerC5 = 0;

    template <class R, class F> static constexpr void Campi(R& r, F&& f) {
        f(r.DataC1); f(r.DataC2); f(r.DataC3); f(r.DataC4); f(r.DataC5);
        f(r.PerC1); f(r.PerC2); f(r.PerC3); f(r.PerC4); f(r.PerC5);
    }
};

// Debit rates in pairs: `PerD1` to `PerD5` within the credit line, `PerD6` to `PerD10` on the
// excess, `PerD6` pairing with `PerD1`.
struct RecTassiDebitori {
    static constexpr std::size_t Lunghezza = 90;
    Fisso<10> DATAD1, DATAD2, DATAD3, DATAD4, DATAD5;
    float PerD1 = 0, PerD2 = 0, PerD3 = 0, PerD4 = 0, PerD5 = 0;
    float PerD6 = 0, PerD7 = 0, PerD8 = 0, PerD9 = 0, PerD10 = 0;

    template <class R, class F> static constexpr void Campi(R& r, F&& f) {
        f(r.DATAD1); f(r.DATAD2); f(r.DATAD3); f(r.DATAD4); f(r.DATAD5);
        f(r.PerD1); f(r.PerD2); f(r.PerD3); f(r.PerD4); f(r.PerD5);
        f(r.PerD6); f(r.PerD7); f(r.PerD8); f(r.PerD9); f(r.PerD10);
    }
};

struct RecOpzioniCalcolo {
    static constexpr std::size_t Lunghezza = 107;
    Fisso<1> FrequenzaChiusura;     // "1" quarterly, "2" half-yearly, "3" yearly; never read
    std::int16_t NrScritt = 0;      // least number of chargeable movements
    Fisso<100> IndInter;            // the bank's internet address
    Fisso<1> GiorniDebitori;        // year of debit interest: "1" 360 days, "2" 365
    Fisso<1> GiorniCreditori;       // year of credit interest: "1" 360 days, "2" 365
    std::int16_t Divisore = 0;      // 1 to 4: the numeri divided by 1, 10, 100, 1000

    template <class R, class F> static constexpr void Campi(R& r, F&& f) {
        f(r.FrequenzaChiusura); f(r.NrScritt); f(r.IndInter); f(r.GiorniDebitori);
        f(r.GiorniCreditori); f(r.Divisore);
    }
};

// Commissions, withholding tax and the two free percentage charges.
struct RecOneriPassivi {
    static constexpr std::size_t Lunghezza = 80;
    float Per1 = 0;                 // commission on the largest excess
    float Per2 = 0;                 // commission on the largest overdraft within the line
    float Per3 = 0;                 // withholding tax on credit interest
    float Per4 = 0;                 // free charge `Descr3`
    float Per5 = 0;                 // free charge `Descr4`
    float Per6 = 0;                 // commission on the excess
    float Per7 = 0;                 // second commission on the excess
    Fisso<25> Descr3;               // blank: the charge doesn't exist
    Fisso<25> Descr4;
    Fisso<1> ApplicaDescr3;         // "1" to "6": the base the charge applies to
    Fisso<1> ApplicaDescr4;

    template <class R, class F> static constexpr void Campi(R& r, F&& f) {
        f(r.Per1); f(r.Per2); f(r.Per3); f(r.Per4); f(r.Per5); f(r.Per6); f(r.Per7);
        f(r.Descr3); f(r.Descr4); f(r.ApplicaDescr3); f(r.ApplicaDescr4);
    }
};

// The fixed charges in base units, each with its frequency: "1" quarterly, "0" yearly.
struct RecSpeseVarie {
    static constexpr std::size_t Lunghezza = 113;
    double IMPORTO1 = 0, IMPORTO2 = 0, IMPORTO3 = 0, IMPORTO4 = 0, IMPORTO5 = 0;
    double IMPORTO6 = 0, IMPORTO7 = 0;
    Fisso<1> Frequenza1, Frequenza2, Frequenza3, Frequenza4, Frequenza5, Frequenza6;
    Fisso<1> Frequenza7;
    Fisso<25> Descr1;               // free text of `IMPORTO6`
    Fisso<25> Descr2;               // free text of `IMPORTO7`

    template <class R, class F> static constexpr void Campi(R& r, F&& f) {
        f(r.IMPORTO1); f(r.IMPORTO2); f(r.IMPORTO3); f(r.IMPORTO4); f(r.IMPORTO5);
        f(r.IMPORTO6); f(r.IMPORTO7);
        f(r.Frequenza1); f(r.Frequenza2); f(r.Frequenza3); f(r.Frequenza4); f(r.Frequenza5);
        f(r.Frequenza6); f(r.Frequenza7); f(r.Descr1); f(r.Descr2);
    }
};
