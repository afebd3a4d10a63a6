#pragma once
// The ledger records of an account: movements (.MOV, .Ord), cached balances (.TOT), the balance
// carried forward (.RIP) and its save for the undo of a close (.chi).
#include "store/Campi.h"

#include <cstddef>
#include <cstdint>

// One movement. The sign lives in `D_A` alone: "U" subtracts, anything else adds.
struct RecMovimento {
    static constexpr std::size_t Lunghezza = 76;
    std::int16_t NrOper = 0;
    Fisso<10> DataOper;
    Fisso<10> DataValuta;
    Fisso<5> Causale;
    double IMPORTO = 0;
    Fisso<8> NrDoc;
    Fisso<30> DescMovim;
    Fisso<1> Sospeso;
    Fisso<1> D_A;
    Fisso<1> Annullato;

    template <class R, class F> static constexpr void Campi(R& r, F&& f) {
        f(r.NrOper); f(r.DataOper); f(r.DataValuta); f(r.Causale); f(r.IMPORTO); f(r.NrDoc);
        f(r.DescMovim); f(r.Sospeso); f(r.D_A); f(r.Annullato);
    }
};

struct RecTotali {
    static constexpr std::size_t Lunghezza = 72;
    double SaldoAllineamento = 0;
    double SaldoValuta = 0;
    double SaldoOperazione = 0;
    double SaldoUltimaData = 0;
    Fisso<10> PrimaDataOperazione;
    Fisso<10> UltimaDataOperazione;
    Fisso<10> PrimaDataValuta;
    Fisso<10> UltimaDataValuta;

    template <class R, class F> static constexpr void Campi(R& r, F&& f) {
        f(r.SaldoAllineamento); f(r.SaldoValuta); f(r.SaldoOperazione); f(r.SaldoUltimaData);
        f(r.PrimaDataOperazione); f(r.UltimaDataOperazione); f(r.PrimaDataValuta);
        f(r.UltimaDataValuta);
    }
};

struct RecRiporto {
    static constexpr std::size_t Lunghezza = 18;
    Fisso<10> DataRiporto;
    double ImportoRiporto = 0;

    template <class R, class F> static constexpr void Campi(R& r, F&& f) {
        f(r.DataRiporto); f(r.ImportoRiporto);
    }
};

// The carried-forward balance as it was before the last close; `CodConto` tells whose it is.
struct RecChiusura {
    static constexpr std::size_t Lunghezza = 30;
    Fisso<10> DataRiporto;
    double ImportoRiporto = 0;
    Fisso<12> CodConto;

    template <class R, class F> static constexpr void Campi(R& r, F&& f) {
        f(r.DataRiporto); f(r.ImportoRiporto); f(r.CodConto);
    }
};
