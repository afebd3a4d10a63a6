// The records as they stand on disk, and the fixed-width texts they are made of.
#include "store/FileRecord.h"
#include "store/RecordAnagrafe.h"
#include "store/RecordAssegni.h"
#include "store/RecordCondizioni.h"
#include "store/RecordRegistro.h"

#include "tests/Ambiente.h"

#include <bit>
#include <charconv>
#include <sstream>

namespace {
// The fields of a record in disk order between bars: texts right-trimmed, numbers shortest.
template <std::size_t N> std::string Valore(const Fisso<N>& testo) { return RTrim(testo.Testo()); }
template <class T> std::string Valore(T numero) {
    char testo[32];
    return std::string(testo, std::to_chars(testo, testo + sizeof testo, numero).ptr);
}
template <class R> std::string Campi(const R& record) {
    std::string s;
    R::Campi(record, [&s](const auto& campo) { s += Valore(campo) + '|'; });
    return s;
}

template <class U> void Piccolo(Byte& byte, U bit) {
    for (std::size_t k = 0; k < sizeof bit; ++k)
        byte.push_back(static_cast<unsigned char>(bit >> 8 * k));
}

// A layout written by hand, fields between bars: "#0201=258" bytes in hex and the number they
// hold, "d=1.5" and "f=1.5" a little-endian double and float, "TEXT~12" a text blank-padded to
// 12 bytes (or "BYTES~12=TEXT" where its bytes aren't the text). The bytes must decode to those
// values in that order and encode back to themselves.
template <class R> void Tracciato(const std::string& tracciato) {
    SCOPED_TRACE(tracciato);
    Byte byte;
    std::string attesi;
    std::istringstream campi(tracciato);
    for (std::string campo; std::getline(campi, campo, '|');) {
        std::size_t uguale = std::min(campo.find('='), campo.size());
        std::size_t tilde = std::min(campo.find('~'), uguale);
        const std::string testo = campo.substr(0, tilde);
        const std::string valore = uguale < campo.size() ? campo.substr(uguale + 1) : testo;
        attesi += valore + '|';
        if (testo == "d") {
            Piccolo(byte, std::bit_cast<std::uint64_t>(std::stod(valore)));
        } else if (testo == "f") {
            Piccolo(byte, std::bit_cast<std::uint32_t>(std::stof(valore)));
        } else if (testo[0] == '#') {
            for (std::size_t k = 1; k < testo.size(); k += 2)
                byte.push_back(static_cast<unsigned char>(std::stoi(testo.substr(k, 2), 0, 16)));
        } else {
            byte.insert(byte.end(), testo.begin(), testo.end());
            if (tilde < uguale)
                byte.resize(byte.size() + std::stoul(campo.substr(tilde + 1)) - testo.size(), ' ');
        }
    }
    ASSERT_EQ(byte.size(), R::Lunghezza);
    R record;
    Decodifica(record, byte.data());
    EXPECT_EQ(Campi(record), attesi);
    Byte scritti(R::Lunghezza);
    Codifica(record, scritti.data());
    EXPECT_EQ(scritti, byte);
}
} // namespace

TEST(Record, OgniTracciatoComeStaSulDisco) {
    Tracciato<RecMovimento>("#0201=258|15/03/2001|20/03/2001|AS~5|#00000000004A9340=1234.5|"
                            "00012345|Caff\xE8 al bar~30=Caffè al bar|S|U|N");
    Tracciato<RecTotali>(
        "d=1.5|d=-2.25|d=100|d=1234.5|01/01/2001|31/12/2001|02/01/2001|30/12/2001");
    Tracciato<RecRiporto>("31/12/2000|d=-1");
    Tracciato<RecChiusura>("30/06/2001|d=0.75|C 123~12");
    Tracciato<RecConto>("#0700=7|000012345678|Conto ordinario~30|Banca Popolare~45|Via Roma 1~45|"
                        "20100|Milano~25|MI|d=5000|R|03069~10|01600~10|IT60X05428");
    // Windows-1252 beyond Latin-1: quotes, a byte of no character, Ÿ, the no-break space, ÿ.
    Tracciato<RecCausale>("#0300=3|GC~5|\x91GIROCONTO\x92\x8D\x9F\xA0\xFF~25="
                          "‘GIROCONTO’\xC2\x8DŸ\xC2\xA0ÿ|S|U|1");
    Tracciato<RecValuta>("#0F00=15|Lira~25|d=1936.27|Italia~25");
    Tracciato<RecImposta>("/home/utente/dati/~35|12345~12|Euro - Unione Europea~25|#0200=2|"
                          "Mario Rossi~30|segreto~10|#FFFF=-1");
    // Ten euros are thirty bytes in memory, beyond the room of the field.
    Tracciato<RecAccesso>("utente~30|\x80\x80\x80\x80\x80\x80\x80\x80\x80\x80=€€€€€€€€€€");
    Tracciato<RecColori>("d=16777215|d=255|S|x");
    Tracciato<RecCarnet>("#0C00=12|#0300=3|01/02/2001|d=2.5|#87D61200=1234567|#90D61200=1234576|"
                         "N|#0A00=10|S|#FEFF=-2");
    Tracciato<RecAssegno>("#2C01=300|#1500=21|#0300=3|#04030201=16909060|05/07/2001|d=0.5|"
                          "Rossi S.p.A.~30|saldo fattura~30|S|D|N");
    Tracciato<RecTassiCreditori>("01/01/2001|01/04/2001|01/07/2001|01/10/2001|__/__/____|"
                                 "f=7.125|f=1.5|f=2.5|f=0.25|f=5");
    Tracciato<RecTassiDebitori>("01/01/2001|01/02/2001|01/03/2001|01/04/2001|01/05/2001|"
                                "f=1|f=2|f=3|f=4|f=5|f=6|f=7|f=8|f=10|f=12");
    Tracciato<RecOpzioniCalcolo>("2|#1900=25|http://www.banca.it~100|1|2|#0300=3");
    Tracciato<RecOneriPassivi>(
        "f=0.5|f=1|f=1.5|f=2|f=2.5|f=3|f=4.5|Spese bancarie~25|Bolli~25|4|6");
    Tracciato<RecSpeseVarie>(
        "d=1|d=2|d=3|d=4|d=5|d=6|d=7|1|0|2|3|4|5|6|Bollo~25|Commissioni~25");
    Tracciato<RecIntero>("#FEFF=-2");
}

// Copies between widths, of texts within the room of a field and beyond it.
TEST(Fisso, CopieTraLarghezze) {
    const Fisso<30> lungo = "perché è già così, però più in là";
    Fisso<5> corto{lungo};
    Fisso<30> ancora;
    ancora = corto;
    EXPECT_EQ(corto.Testo() + "|" + ancora.Testo(), "perch|perch" + std::string(25, ' '));
}

TEST(Cp1252, OgniByteHaUnCarattereEIlRestoPuntiInterrogativi) {
    for (int b = 0; b < 256; ++b) {
        unsigned char uno = static_cast<unsigned char>(b), scritto = 0;
        Cp1252DaUtf8(Utf8DaCp1252(&uno, 1), &scritto, 1);
        EXPECT_EQ(scritto, b);
    }
    const std::pair<std::string, std::string> senzaByte[] = {
        {"\xC2\x80", "?   "}, {"\xF0\x9F\x98\x80x", "?x  "}, {"a\xFFz", "a?z "},
        {"a\xE2\x82", "a?? "}, {"\xED\xA0\x80", "??? "}, {"€ 中ab", "\x80 ?a"}};
    for (const auto& [utf8, atteso] : senzaByte) {
        unsigned char scritti[4];
        Cp1252DaUtf8(utf8, scritti, 4);
        EXPECT_EQ(std::string(scritti, scritti + 4), atteso) << utf8;
    }
}
