#include "store/Campi.h"
#include "store/RecordAnagrafe.h"
#include "store/RecordAssegni.h"
#include "store/RecordCondizioni.h"
#include "store/RecordRegistro.h"
#include "store/Testo.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <type_traits>
#include <vector>

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

// The fields of a record in disk order between bars: texts right-trimmed, numbers shortest.
template <class R> std::string Campi(const R& record) {
    std::string s;
    R::Campi(record, [&s](const auto& campo) {
        using T = std::remove_cvref_t<decltype(campo)>;
        if constexpr (std::is_arithmetic_v<T>) {
            char testo[32];
            s.append(testo, std::to_chars(testo, testo + sizeof testo, campo).ptr);
        } else {
            s += RTrim(campo.Testo());
        }
        s += '|';
    });
    return s;
}

// Checks the size of the record and of the layout, decodes the bytes, checks that encoding the
// result gives them back unchanged, and gives the fields.
template <class R> std::string Giro(const Byte& b) {
    R record;
    if (b.v.size() != R::Lunghezza)
        return "the layout has " + std::to_string(b.v.size()) + " bytes, not " +
               std::to_string(R::Lunghezza);
    Decodifica(record, b.v.data());
    std::vector<unsigned char> scritti(R::Lunghezza);
    Codifica(record, scritti.data());
    EXPECT_EQ(scritti, b.v);
    return Campi(record);
}

// Little-endian doubles: 1.5, -2.25, 100, 1234.5 and so on by their top bytes.
Byte& D(Byte& b, unsigned char alto2, unsigned char alto1) {
    return b.n({0, 0, 0, 0, 0, 0, alto2, alto1});
}
} // namespace

TEST(Record, OgniTracciatoComeStaSulDisco) {
    Byte mov, tot, rip, chi, conto, caus, val, imp, acc, col, car, ass, cre, deb, opz, one, spe;
    // Each byte of the amount a different one: the order of the bytes shows.
    mov.n({0x02, 0x01}).t("15/03/2001", 10).t("20/03/2001", 10).t("AS", 5);
    mov.n({0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x40}).t("00012345", 8);
    mov.t("Caff", 4).n({0xE8}).t(" al bar", 25).t("S", 1).t("U", 1).t("N", 1);
    D(D(D(tot, 0xF8, 0x3F), 0x02, 0xC0), 0x59, 0x40).n({0, 0, 0, 0, 0, 0x4A, 0x93, 0x40});
    tot.t("01/01/2001", 10).t("31/12/2001", 10).t("02/01/2001", 10).t("30/12/2001", 10);
    D(rip.t("31/12/2000", 10), 0xF0, 0xBF);
    D(chi.t("30/06/2001", 10), 0xE8, 0x3F).t("C 123", 12);
    conto.n({0x07, 0x00}).t("000012345678", 12).t("Conto ordinario", 30);
    conto.t("Banca Popolare", 45).t("Via Roma 1", 45).t("20100", 5).t("Milano", 25).t("MI", 2);
    conto.n({0, 0, 0, 0, 0, 0x88, 0xB3, 0x40}).t("R", 1);
    conto.t("03069", 10).t("01600", 10).t("IT60X05428", 10);
    caus.n({0x03, 0x00}).t("GC", 5).t("GIROCONTO", 25).t("S", 1).t("U", 1).t("1", 1);
    val.n({0x0F, 0x00}).t("Lira", 25).n({0xAE, 0x47, 0xE1, 0x7A, 0x14, 0x41, 0x9E, 0x40});
    val.t("Italia", 25);
    imp.t("/home/utente/dati/", 35).t("12345", 12).t("Euro - Unione Europea", 25);
    imp.n({0x02, 0x00}).t("Mario Rossi", 30).t("segreto", 10).n({0xFF, 0xFF});
    acc.t("utente", 30).t("parola", 10);
    col.n({0, 0, 0, 0xE0, 0xFF, 0xFF, 0x6F, 0x41}).n({0, 0, 0, 0, 0, 0xE0, 0x6F, 0x40});
    col.t("S", 1).t("x", 1);
    car.n({0x0C, 0x00}).n({0x03, 0x00}).t("01/02/2001", 10);
    D(car, 0x04, 0x40).n({0x87, 0xD6, 0x12, 0x00}).n({0x90, 0xD6, 0x12, 0x00}).t("N", 1);
    car.n({0x0A, 0x00}).t("S", 1).n({0xFE, 0xFF});
    ass.n({0x2C, 0x01}).n({0x15, 0x00}).n({0x03, 0x00}).n({0x04, 0x03, 0x02, 0x01});
    D(ass.t("05/07/2001", 10), 0xE0, 0x3F).t("Rossi S.p.A.", 30);
    ass.t("saldo fattura", 30).t("S", 1).t("D", 1).t("N", 1);
    cre.t("01/01/2001", 10).t("01/04/2001", 10).t("01/07/2001", 10).t("01/10/2001", 10);
    cre.t("__/__/____", 10).n({0, 0, 0xE4, 0x40}).n({0, 0, 0xC0, 0x3F}).n({0, 0, 0x20, 0x40});
    cre.n({0, 0, 0x80, 0x3E}).n({0, 0, 0xA0, 0x40});
    deb.t("01/01/2001", 10).t("01/02/2001", 10).t("01/03/2001", 10).t("01/04/2001", 10);
    deb.t("01/05/2001", 10);
    // 1 to 8, 10 and 12 as 32-bit floats.
    deb.n({0, 0, 0x80, 0x3F}).n({0, 0, 0x00, 0x40}).n({0, 0, 0x40, 0x40}).n({0, 0, 0x80, 0x40});
    deb.n({0, 0, 0xA0, 0x40}).n({0, 0, 0xC0, 0x40}).n({0, 0, 0xE0, 0x40}).n({0, 0, 0x00, 0x41});
    deb.n({0, 0, 0x20, 0x41}).n({0, 0, 0x40, 0x41});
    opz.t("2", 1).n({0x19, 0x00}).t("http://www.banca.it", 100).t("1", 1).t("2", 1);
    opz.n({0x03, 0x00});
    one.n({0, 0, 0x00, 0x3F}).n({0, 0, 0x80, 0x3F}).n({0, 0, 0xC0, 0x3F}).n({0, 0, 0x00, 0x40});
    one.n({0, 0, 0x20, 0x40}).n({0, 0, 0x40, 0x40}).n({0, 0, 0x90, 0x40});
    one.t("Spese bancarie", 25).t("Bolli", 25).t("4", 1).t("6", 1);
    // 1 to 7 as doubles.
    D(spe, 0xF0, 0x3F);
    for (unsigned char alto : {0x00, 0x08, 0x10, 0x14, 0x18, 0x1C}) D(spe, alto, 0x40);
    spe.t("1023456", 7).t("Bollo", 25).t("Commissioni", 25);

    const std::string importo = [] {
        char testo[32];
        double d = std::bit_cast<double>(std::uint64_t{0x4007060504030201});
        return std::string(testo, std::to_chars(testo, testo + sizeof testo, d).ptr);
    }();
    const struct {
        std::string nome, letti, attesi;
    } casi[] = {
        {"Movimento", Giro<RecMovimento>(mov),
         "258|15/03/2001|20/03/2001|AS|" + importo + "|00012345|Caffè al bar|S|U|N|"},
        {"Totali", Giro<RecTotali>(tot),
         "1.5|-2.25|100|1234.5|01/01/2001|31/12/2001|02/01/2001|30/12/2001|"},
        {"Riporto", Giro<RecRiporto>(rip), "31/12/2000|-1|"},
        {"Chiusura", Giro<RecChiusura>(chi), "30/06/2001|0.75|C 123|"},
        {"Conto", Giro<RecConto>(conto),
         "7|000012345678|Conto ordinario|Banca Popolare|Via Roma 1|20100|Milano|MI|5000|R|03069|"
         "01600|IT60X05428|"},
        {"Causale", Giro<RecCausale>(caus), "3|GC|GIROCONTO|S|U|1|"},
        {"Valuta", Giro<RecValuta>(val), "15|Lira|1936.27|Italia|"},
        {"Imposta", Giro<RecImposta>(imp),
         "/home/utente/dati/|12345|Euro - Unione Europea|2|Mario Rossi|segreto|-1|"},
        {"Accesso", Giro<RecAccesso>(acc), "utente|parola|"},
        {"Colori", Giro<RecColori>(col), "16777215|255|S|x|"},
        {"Carnet", Giro<RecCarnet>(car), "12|3|01/02/2001|2.5|1234567|1234576|N|10|S|-2|"},
        {"Assegno", Giro<RecAssegno>(ass),
         "300|21|3|16909060|05/07/2001|0.5|Rossi S.p.A.|saldo fattura|S|D|N|"},
        {"TassiCreditori", Giro<RecTassiCreditori>(cre),
         "01/01/2001|01/04/2001|01/07/2001|01/10/2001|__/__/____|7.125|1.5|2.5|0.25|5|"},
        {"TassiDebitori", Giro<RecTassiDebitori>(deb),
         "01/01/2001|01/02/2001|01/03/2001|01/04/2001|01/05/2001|1|2|3|4|5|6|7|8|10|12|"},
        {"OpzioniCalcolo", Giro<RecOpzioniCalcolo>(opz), "2|25|http://www.banca.it|1|2|3|"},
        {"OneriPassivi", Giro<RecOneriPassivi>(one),
         "0.5|1|1.5|2|2.5|3|4.5|Spese bancarie|Bolli|4|6|"},
        {"SpeseVarie", Giro<RecSpeseVarie>(spe), "1|2|3|4|5|6|7|1|0|2|3|4|5|6|Bollo|Commissioni|"},
    };
    for (const auto& c : casi) EXPECT_EQ(c.letti, c.attesi) << c.nome;
}

// A record never written is all zero bytes: its texts read as blanks and write back so.
TEST(Record, ByteZeroSonoVuoti) {
    Byte zeri, atteso;
    zeri.n({0, 0}).v.resize(35, 0);
    atteso.n({0, 0}).t("", 33);
    RecCausale r;
    r.CodCausale = "AS";
    Decodifica(r, zeri.v.data());
    EXPECT_EQ(Campi(r), "0||||||");
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
