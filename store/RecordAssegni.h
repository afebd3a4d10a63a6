#pragma once
// The cheque side of an account: books (.CAR) and their sheets (.FOG).
#include "store/Campi.h"

#include <cstddef>
#include <cstdint>

struct RecCarnet {
    static constexpr std::size_t Lunghezza = 36;
    std::int16_t MovCosto = 0;      // NrOper of the book's "CA" movement
    std::int16_t NrCarnet = 0;
    Fisso<10> DataCarnet;
    double CostoCarnet = 0;
    std::int32_t NrInf = 0;         // first cheque number
    std::int32_t NrFinale = 0;      // last cheque number
    Fisso<1> Chiuso;
    std::int16_t FogliFuori = 0;    // sheets not yet aligned with the bank
    Fisso<1> CostoAllineato;
    std::int16_t Riservato = 0;

    template <class R, class F> static constexpr void Campi(R& r, F&& f) {
        f(r.MovCosto); f(r.NrCarnet); f(r.DataCarnet); f(r.CostoCarnet); f(r.NrInf);
        f(r.NrFinale); f(r.Chiuso); f(r.FogliFuori); f(r.CostoAllineato); f(r.Riservato);
    }
};

// One sheet of a book; once issued, a cheque.
struct RecAssegno {
    static constexpr std::size_t Lunghezza = 91;
    std::int16_t NrMovimento = 0;   // NrOper of the cheque's "AS" movement; 0 while not issued
    std::int16_t NrFoglio = 0;      // its own record number in .FOG
    std::int16_t NrCarnet = 0;
    std::int32_t NrAssegno = 0;
    Fisso<10> DataAssegno;
    double IMPORTO = 0;
    Fisso<30> traente;
    Fisso<30> NoteAss;
    Fisso<1> Allineato;
    Fisso<1> Disponibile;
    Fisso<1> AssegnoAnnullato;

    template <class R, class F> static constexpr void Campi(R& r, F&& f) {
        f(r.NrMovimento); f(r.NrFoglio); f(r.NrCarnet); f(r.NrAssegno); f(r.DataAssegno);
        f(r.IMPORTO); f(r.traente); f(r.NoteAss); f(r.Allineato); f(r.Disponibile);
        f(r.AssegnoAnnullato);
    }
};
