#include "store/Campi.h"
#include "store/RecordAnagrafe.h"
#include "store/RecordAssegni.h"
#include "store/RecordCondizioni.h"
#include "store/RecordRegistro.h"
#include "store/Testo.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

// Failure messages show the text of a field.
template <std::size_t N> void PrintTo(const Fisso<N>& campo, std::ostream* os) {
    *os << '"' << campo.Testo() << '"';
}

namespace {
// A record laid out by hand: numbers as their little-endian bytes, texts blank-padded.
struct Byte {
    std::vector<unsigned char> v;
    Byte& n(std::initializer_list<unsigned char> byte) {
        v.insert(v.end(), byte);
        return *this;
    }
    Byte& t(const std::string& testo, std::size_t larghezza) {
        v.insert(v.end(), testo.begin(), testo.end());
        v.resize(v.size() + larghezza - testo.size(), ' ');
        return *this;
    }
};

// Checks the size of the record and of the layout, decodes the bytes, and checks that encoding
// the result gives them back unchanged.
template <class R> R Giro(const Byte& b, std::size_t lunghezza) {
    R record;
    EXPECT_EQ(R::Lunghezza, lunghezza);
    if (b.v.size() != R::Lunghezza) {
        ADD_FAILURE() << "the layout has " << b.v.size() << " bytes, not " << R::Lunghezza;
        return record;
    }
    Decodifica(record, b.v.data());
    std::vector<unsigned char> scritti(R::Lunghezza);
    Codifica(record, scritti.data());
    EXPECT_EQ(scritti, b.v);
    return record;
}

// The text fields of a record, right-trimmed, between bars; and its number fields.
std::string Testi(std::initializer_list<std::string> campi) {
    std::string s;
    for (const std::string& c : campi) s += RTrim(c) + "|";
    return s;
}
template <class... T> std::vector<double> Numeri(T... numeri) {
    return {static_cast<double>(numeri)...};
}
} // namespace

TEST(Record, Movimento) {
    Byte b;
    b.n({0x02, 0x01}).t("15/03/2001", 10).t("20/03/2001", 10).t("AS", 5);
    b.n({0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x40}).t("00012345", 8);
    b.t("Caff", 4).n({0xE8}).t(" al bar", 25).t("S", 1).t("U", 1).t("N", 1);
    auto r = Giro<RecMovimento>(b, 76);
    EXPECT_EQ(r.NrOper, 258);
    EXPECT_EQ(r.IMPORTO, std::bit_cast<double>(std::uint64_t{0x4007060504030201}));
    EXPECT_EQ(Testi({r.DataOper, r.DataValuta, r.Causale, r.NrDoc, r.DescMovim, r.Sospeso, r.D_A,
                     r.Annullato}),
              "15/03/2001|20/03/2001|AS|00012345|Caffè al bar|S|U|N|");
}

TEST(Record, Totali) {
    Byte b;
    b.n({0, 0, 0, 0, 0, 0, 0xF8, 0x3F}).n({0, 0, 0, 0, 0, 0, 0x02, 0xC0});
    b.n({0, 0, 0, 0, 0, 0, 0x59, 0x40}).n({0, 0, 0, 0, 0, 0x4A, 0x93, 0x40});
    b.t("01/01/2001", 10).t("31/12/2001", 10).t("02/01/2001", 10).t("30/12/2001", 10);
    auto r = Giro<RecTotali>(b, 72);
    EXPECT_EQ(Numeri(r.SaldoAllineamento, r.SaldoValuta, r.SaldoOperazione, r.SaldoUltimaData),
              Numeri(1.5, -2.25, 100.0, 1234.5));
    EXPECT_EQ(Testi({r.PrimaDataOperazione, r.UltimaDataOperazione, r.PrimaDataValuta,
                     r.UltimaDataValuta}),
              "01/01/2001|31/12/2001|02/01/2001|30/12/2001|");
}

TEST(Record, RiportoEChiusura) {
    Byte rip;
    rip.t("31/12/2000", 10).n({0, 0, 0, 0, 0, 0, 0xF0, 0xBF});
    auto r = Giro<RecRiporto>(rip, 18);
    EXPECT_EQ(r.DataRiporto, "31/12/2000");
    EXPECT_EQ(r.ImportoRiporto, -1.0);

    Byte chi;
    chi.t("30/06/2001", 10).n({0, 0, 0, 0, 0, 0, 0xE8, 0x3F}).t("C 123", 12);
    auto c = Giro<RecChiusura>(chi, 30);
    EXPECT_EQ(c.DataRiporto, "30/06/2001");
    EXPECT_EQ(c.ImportoRiporto, 0.75);
    EXPECT_EQ(c.CodConto, "C 123       ");
}

TEST(Record, Conto) {
    Byte b;
    b.n({0x07, 0x00}).t("000012345678", 12).t("Conto ordinario", 30);
    b.t("Banca Popolare", 45).t("Via Roma 1", 45).t("20100", 5).t("Milano", 25).t("MI", 2);
    b.n({0, 0, 0, 0, 0, 0x88, 0xB3, 0x40}).t("R", 1);
    b.t("03069", 10).t("01600", 10).t("IT60X05428", 10);
    auto r = Giro<RecConto>(b, 205);
    EXPECT_EQ(Numeri(r.Numero, r.Fido), Numeri(7, 5000));
    EXPECT_EQ(Testi({r.CodConto, r.TipoConto, r.NomeBanca, r.IndBanca, r.CapBanca, r.LocBanca,
                     r.ProvBanca, r.Riservato, r.abi, r.Cab, r.id}),
              "000012345678|Conto ordinario|Banca Popolare|Via Roma 1|20100|Milano|MI|R|03069|"
              "01600|IT60X05428|");
}

TEST(Record, CausaleEValuta) {
    Byte b;
    b.n({0x03, 0x00}).t("GC", 5).t("GIROCONTO", 25).t("S", 1).t("U", 1).t("1", 1);
    auto c = Giro<RecCausale>(b, 35);
    EXPECT_EQ(c.Numero, 3);
    EXPECT_EQ(Testi({c.CodCausale, c.DescCausale, c.Sospeso, c.DareAvere, c.SoggettoCosto}),
              "GC|GIROCONTO|S|U|1|");

    Byte val;
    val.n({0x0F, 0x00}).t("Lira", 25).n({0xAE, 0x47, 0xE1, 0x7A, 0x14, 0x41, 0x9E, 0x40});
    val.t("Italia", 25);
    auto v = Giro<RecValuta>(val, 60);
    EXPECT_EQ(Numeri(v.Numero, v.Cambio), Numeri(15, 1936.27));
    EXPECT_EQ(Testi({v.Nome, v.Paese}), "Lira|Italia|");
}

TEST(Record, ImpostaAccessoEColori) {
    Byte b;
    b.t("/home/utente/dati/", 35).t("12345", 12).t("Euro - Unione Europea", 25);
    b.n({0x02, 0x00}).t("Mario Rossi", 30).t("segreto", 10).n({0xFF, 0xFF});
    auto r = Giro<RecImposta>(b, 116);
    EXPECT_EQ(Numeri(r.decimali, r.accesso), Numeri(2, -1));
    EXPECT_EQ(Testi({r.PerAvv, r.contAvv, r.Combo1, r.NomeUt, r.PassW}),
              "/home/utente/dati/|12345|Euro - Unione Europea|Mario Rossi|segreto|");

    Byte acc;
    acc.t("utente", 30).t("parola", 10);
    auto a = Giro<RecAccesso>(acc, 40);
    EXPECT_EQ(Testi({a.txtUserName, a.txtPassword}), "utente|parola|");

    Byte col;
    col.n({0, 0, 0, 0xE0, 0xFF, 0xFF, 0x6F, 0x41}).n({0, 0, 0, 0, 0, 0xE0, 0x6F, 0x40});
    col.t("S", 1).t("x", 1);
    auto c = Giro<RecColori>(col, 18);
    EXPECT_EQ(Numeri(c.ColoreSfondo, c.ColoreCarattere), Numeri(16777215, 255));
    EXPECT_EQ(Testi({c.Predefiniti, c.Riservato}), "S|x|");
}

TEST(Record, Carnet) {
    Byte b;
    b.n({0x0C, 0x00}).n({0x03, 0x00}).t("01/02/2001", 10).n({0, 0, 0, 0, 0, 0, 0x04, 0x40});
    b.n({0x87, 0xD6, 0x12, 0x00}).n({0x90, 0xD6, 0x12, 0x00}).t("N", 1).n({0x0A, 0x00});
    b.t("S", 1).n({0xFE, 0xFF});
    auto r = Giro<RecCarnet>(b, 36);
    EXPECT_EQ(Numeri(r.MovCosto, r.NrCarnet, r.CostoCarnet, r.NrInf, r.NrFinale, r.FogliFuori,
                     r.Riservato),
              Numeri(12, 3, 2.5, 1234567, 1234576, 10, -2));
    EXPECT_EQ(Testi({r.DataCarnet, r.Chiuso, r.CostoAllineato}), "01/02/2001|N|S|");
}

TEST(Record, Assegno) {
    Byte b;
    b.n({0x2C, 0x01}).n({0x15, 0x00}).n({0x03, 0x00}).n({0x04, 0x03, 0x02, 0x01});
    b.t("05/07/2001", 10).n({0, 0, 0, 0, 0, 0, 0xE0, 0x3F}).t("Rossi S.p.A.", 30);
    b.t("saldo fattura", 30).t("S", 1).t("D", 1).t("N", 1);
    auto r = Giro<RecAssegno>(b, 91);
    EXPECT_EQ(Numeri(r.NrMovimento, r.NrFoglio, r.NrCarnet, r.NrAssegno, r.IMPORTO),
              Numeri(300, 21, 3, 16909060, 0.5));
    EXPECT_EQ(Testi({r.DataAssegno, r.traente, r.NoteAss, r.Allineato, r.Disponibile,
                     r.AssegnoAnnullato}),
              "05/07/2001|Rossi S.p.A.|saldo fattura|S|D|N|");
}

TEST(Record, Tassi) {
    Byte cre;
    cre.t("01/01/2001", 10).t("01/04/2001", 10).t("01/07/2001", 10).t("01/10/2001", 10);
    cre.t("__/__/____", 10).n({0, 0, 0xE4, 0x40}).n({0, 0, 0xC0, 0x3F}).n({0, 0, 0x20, 0x40});
    cre.n({0, 0, 0x80, 0x3E}).n({0, 0, 0xA0, 0x40});
    auto c = Giro<RecTassiCreditori>(cre, 70);
    EXPECT_EQ(Testi({c.DataC1, c.DataC2, c.DataC3, c.DataC4, c.DataC5}),
              "01/01/2001|01/04/2001|01/07/2001|01/10/2001|__/__/____|");
    EXPECT_EQ(Numeri(c.PerC1, c.PerC2, c.PerC3, c.PerC4, c.PerC5),
              Numeri(7.125, 1.5, 2.5, 0.25, 5));

    Byte deb;
    deb.t("01/01/2001", 10).t("01/02/2001", 10).t("01/03/2001", 10).t("01/04/2001", 10);
    deb.t("01/05/2001", 10);
    // 1 to 8, 10 and 12 as 32-bit floats.
    deb.n({0, 0, 0x80, 0x3F}).n({0, 0, 0x00, 0x40}).n({0, 0, 0x40, 0x40}).n({0, 0, 0x80, 0x40});
    deb.n({0, 0, 0xA0, 0x40}).n({0, 0, 0xC0, 0x40}).n({0, 0, 0xE0, 0x40}).n({0, 0, 0x00, 0x41});
    deb.n({0, 0, 0x20, 0x41}).n({0, 0, 0x40, 0x41});
    auto d = Giro<RecTassiDebitori>(deb, 90);
    EXPECT_EQ(Testi({d.DATAD1, d.DATAD2, d.DATAD3, d.DATAD4, d.DATAD5}),
              "01/01/2001|01/02/2001|01/03/2001|01/04/2001|01/05/2001|");
    EXPECT_EQ(Numeri(d.PerD1, d.PerD2, d.PerD3, d.PerD4, d.PerD5, d.PerD6, d.PerD7, d.PerD8,
                     d.PerD9, d.PerD10),
              Numeri(1, 2, 3, 4, 5, 6, 7, 8, 10, 12));
}

TEST(Record, OpzioniCalcoloEOneriPassivi) {
    Byte opz;
    opz.t("2", 1).n({0x19, 0x00}).t("http://www.banca.it", 100).t("1", 1).t("2", 1);
    opz.n({0x03, 0x00});
    auto o = Giro<RecOpzioniCalcolo>(opz, 107);
    EXPECT_EQ(Numeri(o.NrScritt, o.Divisore), Numeri(25, 3));
    EXPECT_EQ(Testi({o.FrequenzaChiusura, o.IndInter, o.GiorniDebitori, o.GiorniCreditori}),
              "2|http://www.banca.it|1|2|");

    Byte one;
    one.n({0, 0, 0x00, 0x3F}).n({0, 0, 0x80, 0x3F}).n({0, 0, 0xC0, 0x3F}).n({0, 0, 0x00, 0x40});
    one.n({0, 0, 0x20, 0x40}).n({0, 0, 0x40, 0x40}).n({0, 0, 0x90, 0x40});
    one.t("Spese bancarie", 25).t("Bolli", 25).t("4", 1).t("6", 1);
    auto p = Giro<RecOneriPassivi>(one, 80);
    EXPECT_EQ(Numeri(p.Per1, p.Per2, p.Per3, p.Per4, p.Per5, p.Per6, p.Per7),
              Numeri(0.5, 1, 1.5, 2, 2.5, 3, 4.5));
    EXPECT_EQ(Testi({p.Descr3, p.Descr4, p.ApplicaDescr3, p.ApplicaDescr4}),
              "Spese bancarie|Bolli|4|6|");
}

TEST(Record, SpeseVarie) {
    Byte b;
    // 1 to 7 as doubles.
    b.n({0, 0, 0, 0, 0, 0, 0xF0, 0x3F}).n({0, 0, 0, 0, 0, 0, 0x00, 0x40});
    b.n({0, 0, 0, 0, 0, 0, 0x08, 0x40}).n({0, 0, 0, 0, 0, 0, 0x10, 0x40});
    b.n({0, 0, 0, 0, 0, 0, 0x14, 0x40}).n({0, 0, 0, 0, 0, 0, 0x18, 0x40});
    b.n({0, 0, 0, 0, 0, 0, 0x1C, 0x40});
    b.t("1023456", 7).t("Bollo", 25).t("Commissioni", 25);
    auto r = Giro<RecSpeseVarie>(b, 113);
    EXPECT_EQ(Numeri(r.IMPORTO1, r.IMPORTO2, r.IMPORTO3, r.IMPORTO4, r.IMPORTO5, r.IMPORTO6,
                     r.IMPORTO7),
              Numeri(1, 2, 3, 4, 5, 6, 7));
    EXPECT_EQ(Testi({r.Frequenza1, r.Frequenza2, r.Frequenza3, r.Frequenza4, r.Frequenza5,
                     r.Frequenza6, r.Frequenza7, r.Descr1, r.Descr2}),
              "1|0|2|3|4|5|6|Bollo|Commissioni|");
}

// A record never written is all zero bytes: its texts read as blanks and write back so.
TEST(Record, ByteZeroSonoVuoti) {
    Byte zeri, atteso;
    zeri.n({0, 0}).v.resize(35, 0);
    atteso.n({0, 0}).t("", 33);
    RecCausale r;
    r.CodCausale = "AS";
    Decodifica(r, zeri.v.data());
    EXPECT_EQ(Testi({r.CodCausale, r.SoggettoCosto}), "||");
    std::vector<unsigned char> scritti(35);
    Codifica(r, scritti.data());
    EXPECT_EQ(scritti, atteso.v);
}

TEST(Fisso, ConfrontiSulTestoPienoECopieTraLarghezze) {
    Fisso<3> codice = "S";
    EXPECT_FALSE(codice == "S");
    EXPECT_TRUE(codice == "S  ");
    EXPECT_TRUE(codice == Fisso<3>("S"));

    Fisso<12> lungo = "ABCDEFGHIJ";
    Fisso<4> corto;
    corto = lungo;
    EXPECT_EQ(corto.Testo(), "ABCD");
    lungo = corto;
    EXPECT_EQ(lungo.Testo(), "ABCD        ");
}

TEST(Cp1252, ByteECaratteri) {
    const std::pair<unsigned char, std::string> righe[] = {
        {0x8D, "\xC2\x8D"}, // unassigned
        {0x91, "‘"},
        {0x9F, "Ÿ"},
        {0xA0, "\xC2\xA0"}, // no-break space
        {0xFF, "ÿ"},
    };
    for (const auto& [byte, utf8] : righe) EXPECT_EQ(Utf8DaCp1252(&byte, 1), utf8) << int{byte};
    // Every byte comes back from its character.
    for (int b = 0; b < 256; ++b) {
        auto byte = static_cast<unsigned char>(b);
        unsigned char scritto = 0;
        Cp1252DaUtf8(Utf8DaCp1252(&byte, 1), &scritto, 1);
        EXPECT_EQ(scritto, byte) << "byte " << b;
    }
}

TEST(Cp1252, CaratteriSenzaByte) {
    struct Riga {
        const char* nome;
        std::string utf8;
        std::string atteso;
    };
    const Riga righe[] = {
        {"C1 80 isn't the euro", "\xC2\x80", "?   "},
        {"emoji", "\xF0\x9F\x98\x80x", "?x  "},
        {"stray byte", "a\xFFz", "a?z "},
        {"truncated sequence", "a\xE2\x82", "a?? "},
        {"surrogate", "\xED\xA0\x80", "??? "},
        {"cut to the width", "abcdef", "abcd"},
    };
    for (const Riga& r : righe) {
        unsigned char scritti[4];
        Cp1252DaUtf8(r.utf8, scritti, 4);
        EXPECT_EQ(std::string(scritti, scritti + 4), r.atteso) << r.nome;
    }
}
