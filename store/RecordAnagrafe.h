#pragma once
// The master records shared by all accounts: accounts, causali, currencies, preferences, the
// login file and the colours.
#include "store/Campi.h"

#include <cstddef>
#include <cstdint>

struct RecConto {
    static constexpr std::size_t Lunghezza = 205;
    std::int16_t Numero = 0;    // the record's own number, from 1
    Fisso<12> CodConto;         // trimmed, the stem of the account's files
    Fisso<30> TipoConto;
    Fisso<45> NomeBanca;
    Fisso<45> IndBanca;
    Fisso<5> CapBanca;
    Fisso<25> LocBanca;
    Fisso<2> ProvBanca;
    double Fido = 0;
    Fisso<1> Riservato;         // no screen reads or writes it
    Fisso<10> abi;
    Fisso<10> Cab;
    Fisso<10> id;

    template <class R, class F> static constexpr void Campi(R& r, F&& f) {
        f(r.Numero); f(r.CodConto); f(r.TipoConto); f(r.NomeBanca); f(r.IndBanca);
        f(r.CapBanca); f(r.LocBanca); f(r.ProvBanca); f(r.Fido); f(r.Riservato); f(r.abi);
        f(r.Cab); f(r.id);
    }
};

struct RecCausale {
    static constexpr std::size_t Lunghezza = 35;
    std::int16_t Numero = 0;    // the record's own number, from 1
    Fisso<5> CodCausale;
    Fisso<25> DescCausale;
    Fisso<1> Sospeso;           // "S" a new movement starts suspended
    Fisso<1> DareAvere;         // "E" entrate, "U" uscite
    Fisso<1> SoggettoCosto;     // "1" the movement is subject to a cost, "0" it isn't

    template <class R, class F> static constexpr void Campi(R& r, F&& f) {
        f(r.Numero); f(r.CodCausale); f(r.DescCausale); f(r.Sospeso); f(r.DareAvere);
        f(r.SoggettoCosto);
    }
};

// A currency, at its fixed record number of Valute.DAT.
struct RecValuta {
    static constexpr std::size_t Lunghezza = 60;
    std::int16_t Numero = 0;    // 15 in the Euro's seeded record, 0 in the others
    Fisso<25> Nome;
    double Cambio = 0;          // how much of this currency makes 1 Euro
    Fisso<25> Paese;

    template <class R, class F> static constexpr void Campi(R& r, F&& f) {
        f(r.Numero); f(r.Nome); f(r.Cambio); f(r.Paese);
    }
};

// The preferences.
struct RecImposta {
    static constexpr std::size_t Lunghezza = 116;
    Fisso<35> PerAvv;           // data path at start; "0" when left empty
    Fisso<12> contAvv;          // account to open at start
    Fisso<25> Combo1;           // default currency, as its line of the currency combo
    std::int16_t decimali = 0;
    Fisso<30> NomeUt;
    Fisso<10> PassW;
    std::int16_t accesso = 0;   // -1 login required, 0 not

    template <class R, class F> static constexpr void Campi(R& r, F&& f) {
        f(r.PerAvv); f(r.contAvv); f(r.Combo1); f(r.decimali); f(r.NomeUt); f(r.PassW);
        f(r.accesso);
    }
};

// The record of the file Torrelba.
struct RecAccesso {
    static constexpr std::size_t Lunghezza = 40;
    Fisso<30> txtUserName;
    Fisso<10> txtPassword;

    template <class R, class F> static constexpr void Campi(R& r, F&& f) {
        f(r.txtUserName); f(r.txtPassword);
    }
};

struct RecColori {
    static constexpr std::size_t Lunghezza = 18;
    double ColoreSfondo = 0;    // RGB as a whole number
    double ColoreCarattere = 0;
    Fisso<1> Predefiniti;       // "S" the default colours, "N" chosen by the user
    Fisso<1> Riservato;

    template <class R, class F> static constexpr void Campi(R& r, F&& f) {
        f(r.ColoreSfondo); f(r.ColoreCarattere); f(r.Predefiniti); f(r.Riservato);
    }
};
