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

// Decodes the bytes and checks that encoding the result gives them back unchanged.
template <class R> R Giro(const Byte& b) {
    R record;
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

// Expected fields, padded by characters, not bytes.
std::string Pad(const std::string& testo, int larghezza) {
    return testo + std::string(static_cast<std::size_t>(larghezza - Len(testo)), ' ');
}
} // namespace

TEST(Record, LunghezzeDeiTracciati) {
    struct Riga {
        const char* nome;
        std::size_t lunghezza, campi, attesa;
    };
    const Riga righe[] = {
        {"RecMovimento", RecMovimento::Lunghezza, LarghezzaCampi<RecMovimento>(), 76},
        {"RecTotali", RecTotali::Lunghezza, LarghezzaCampi<RecTotali>(), 72},
        {"RecRiporto", RecRiporto::Lunghezza, LarghezzaCampi<RecRiporto>(), 18},
        {"RecChiusura", RecChiusura::Lunghezza, LarghezzaCampi<RecChiusura>(), 30},
        {"RecConto", RecConto::Lunghezza, LarghezzaCampi<RecConto>(), 205},
        {"RecCausale", RecCausale::Lunghezza, LarghezzaCampi<RecCausale>(), 35},
        {"RecValuta", RecValuta::Lunghezza, LarghezzaCampi<RecValuta>(), 60},
        {"RecImposta", RecImposta::Lunghezza, LarghezzaCampi<RecImposta>(), 116},
        {"RecAccesso", RecAccesso::Lunghezza, LarghezzaCampi<RecAccesso>(), 40},
        {"RecColori", RecColori::Lunghezza, LarghezzaCampi<RecColori>(), 18},
        {"RecCarnet", RecCarnet::Lunghezza, LarghezzaCampi<RecCarnet>(), 36},
        {"RecAssegno", RecAssegno::Lunghezza, LarghezzaCampi<RecAssegno>(), 91},
        {"RecTassiCreditori", RecTassiCreditori::Lunghezza,
         LarghezzaCampi<RecTassiCreditori>(), 70},
        {"RecTassiDebitori", RecTassiDebitori::Lunghezza, LarghezzaCampi<RecTassiDebitori>(),
         90},
        {"RecOpzioniCalcolo", RecOpzioniCalcolo::Lunghezza,
         LarghezzaCampi<RecOpzioniCalcolo>(), 107},
        {"RecOneriPassivi", RecOneriPassivi::Lunghezza, LarghezzaCampi<RecOneriPassivi>(), 80},
        {"RecSpeseVarie", RecSpeseVarie::Lunghezza, LarghezzaCampi<RecSpeseVarie>(), 113},
    };
    for (const Riga& r : righe) {
        EXPECT_EQ(r.lunghezza, r.attesa) << r.nome;
        EXPECT_EQ(r.campi, r.attesa) << r.nome;
    }
}

TEST(Record, Movimento) {
    Byte b;
    b.n({0x02, 0x01}).t("15/03/2001", 10).t("20/03/2001", 10).t("AS", 5);
    b.n({0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x40}).t("00012345", 8);
    b.t("Caff", 4).n({0xE8}).t(" al bar", 25).t("S", 1).t("U", 1).t("N", 1);
    auto r = Giro<RecMovimento>(b);
    EXPECT_EQ(r.NrOper, 258);
    EXPECT_EQ(r.DataOper, "15/03/2001");
    EXPECT_EQ(r.DataValuta, "20/03/2001");
    EXPECT_EQ(r.Causale, "AS   ");
    EXPECT_EQ(r.IMPORTO, std::bit_cast<double>(std::uint64_t{0x4007060504030201}));
    EXPECT_EQ(r.NrDoc, "00012345");
    EXPECT_EQ(r.DescMovim, Pad("Caffè al bar", 30));
    EXPECT_EQ(r.Sospeso, "S");
    EXPECT_EQ(r.D_A, "U");
    EXPECT_EQ(r.Annullato, "N");
}

TEST(Record, Totali) {
    Byte b;
    b.n({0, 0, 0, 0, 0, 0, 0xF8, 0x3F}).n({0, 0, 0, 0, 0, 0, 0x02, 0xC0});
    b.n({0, 0, 0, 0, 0, 0, 0x59, 0x40}).n({0, 0, 0, 0, 0, 0x4A, 0x93, 0x40});
    b.t("01/01/2001", 10).t("31/12/2001", 10).t("02/01/2001", 10).t("30/12/2001", 10);
    auto r = Giro<RecTotali>(b);
    EXPECT_EQ(r.SaldoAllineamento, 1.5);
    EXPECT_EQ(r.SaldoValuta, -2.25);
    EXPECT_EQ(r.SaldoOperazione, 100.0);
    EXPECT_EQ(r.SaldoUltimaData, 1234.5);
    EXPECT_EQ(r.PrimaDataOperazione, "01/01/2001");
    EXPECT_EQ(r.UltimaDataOperazione, "31/12/2001");
    EXPECT_EQ(r.PrimaDataValuta, "02/01/2001");
    EXPECT_EQ(r.UltimaDataValuta, "30/12/2001");
}

TEST(Record, RiportoEChiusura) {
    Byte rip;
    rip.t("31/12/2000", 10).n({0, 0, 0, 0, 0, 0, 0xF0, 0xBF});
    auto r = Giro<RecRiporto>(rip);
    EXPECT_EQ(r.DataRiporto, "31/12/2000");
    EXPECT_EQ(r.ImportoRiporto, -1.0);

    Byte chi;
    chi.t("30/06/2001", 10).n({0, 0, 0, 0, 0, 0, 0xE8, 0x3F}).t("C 123", 12);
    auto c = Giro<RecChiusura>(chi);
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
    auto r = Giro<RecConto>(b);
    EXPECT_EQ(r.Numero, 7);
    EXPECT_EQ(r.CodConto, "000012345678");
    EXPECT_EQ(r.TipoConto, Pad("Conto ordinario", 30));
    EXPECT_EQ(r.NomeBanca, Pad("Banca Popolare", 45));
    EXPECT_EQ(r.IndBanca, Pad("Via Roma 1", 45));
    EXPECT_EQ(r.CapBanca, "20100");
    EXPECT_EQ(r.LocBanca, Pad("Milano", 25));
    EXPECT_EQ(r.ProvBanca, "MI");
    EXPECT_EQ(r.Fido, 5000.0);
    EXPECT_EQ(r.Riservato, "R");
    EXPECT_EQ(r.abi, "03069     ");
    EXPECT_EQ(r.Cab, "01600     ");
    EXPECT_EQ(r.id, "IT60X05428");
}

TEST(Record, Causale) {
    Byte b;
    b.n({0x03, 0x00}).t("GC", 5).t("GIROCONTO", 25).t("S", 1).t("U", 1).t("1", 1);
    auto r = Giro<RecCausale>(b);
    EXPECT_EQ(r.Numero, 3);
    EXPECT_EQ(r.CodCausale, "GC   ");
    EXPECT_EQ(r.DescCausale, Pad("GIROCONTO", 25));
    EXPECT_EQ(r.Sospeso, "S");
    EXPECT_EQ(r.DareAvere, "U");
    EXPECT_EQ(r.SoggettoCosto, "1");
}

TEST(Record, Valuta) {
    Byte b;
    b.n({0x0F, 0x00}).t("Lira", 25).n({0xAE, 0x47, 0xE1, 0x7A, 0x14, 0x41, 0x9E, 0x40});
    b.t("Italia", 25);
    auto r = Giro<RecValuta>(b);
    EXPECT_EQ(r.Numero, 15);
    EXPECT_EQ(r.Nome, Pad("Lira", 25));
    EXPECT_EQ(r.Cambio, 1936.27);
    EXPECT_EQ(r.Paese, Pad("Italia", 25));
}

TEST(Record, Imposta) {
    Byte b;
    b.t("/home/utente/dati/", 35).t("12345", 12).t("Euro - Unione Europea", 25);
    b.n({0x02, 0x00}).t("Mario Rossi", 30).t("segreto", 10).n({0xFF, 0xFF});
    auto r = Giro<RecImposta>(b);
    EXPECT_EQ(r.PerAvv, Pad("/home/utente/dati/", 35));
    EXPECT_EQ(r.contAvv, Pad("12345", 12));
    EXPECT_EQ(r.Combo1, Pad("Euro - Unione Europea", 25));
    EXPECT_EQ(r.decimali, 2);
    EXPECT_EQ(r.NomeUt, Pad("Mario Rossi", 30));
    EXPECT_EQ(r.PassW, Pad("segreto", 10));
    EXPECT_EQ(r.accesso, -1);
}

TEST(Record, AccessoEColori) {
    Byte acc;
    acc.t("utente", 30).t("parola", 10);
    auto a = Giro<RecAccesso>(acc);
    EXPECT_EQ(a.txtUserName, Pad("utente", 30));
    EXPECT_EQ(a.txtPassword, Pad("parola", 10));

    Byte col;
    col.n({0, 0, 0, 0xE0, 0xFF, 0xFF, 0x6F, 0x41}).n({0, 0, 0, 0, 0, 0xE0, 0x6F, 0x40});
    col.t("S", 1).t("x", 1);
    auto c = Giro<RecColori>(col);
    EXPECT_EQ(c.ColoreSfondo, 16777215.0);
    EXPECT_EQ(c.ColoreCarattere, 255.0);
    EXPECT_EQ(c.Predefiniti, "S");
    EXPECT_EQ(c.Riservato, "x");
}

TEST(Record, Carnet) {
    Byte b;
    b.n({0x0C, 0x00}).n({0x03, 0x00}).t("01/02/2001", 10).n({0, 0, 0, 0, 0, 0, 0x04, 0x40});
    b.n({0x87, 0xD6, 0x12, 0x00}).n({0x90, 0xD6, 0x12, 0x00}).t("N", 1).n({0x0A, 0x00});
    b.t("S", 1).n({0xFE, 0xFF});
    auto r = Giro<RecCarnet>(b);
    EXPECT_EQ(r.MovCosto, 12);
    EXPECT_EQ(r.NrCarnet, 3);
    EXPECT_EQ(r.DataCarnet, "01/02/2001");
    EXPECT_EQ(r.CostoCarnet, 2.5);
    EXPECT_EQ(r.NrInf, 1234567);
    EXPECT_EQ(r.NrFinale, 1234576);
    EXPECT_EQ(r.Chiuso, "N");
    EXPECT_EQ(r.FogliFuori, 10);
    EXPECT_EQ(r.CostoAllineato, "S");
    EXPECT_EQ(r.Riservato, -2);
}

TEST(Record, Assegno) {
    Byte b;
    b.n({0x2C, 0x01}).n({0x15, 0x00}).n({0x03, 0x00}).n({0x04, 0x03, 0x02, 0x01});
    b.t("05/07/2001", 10).n({0, 0, 0, 0, 0, 0, 0xE0, 0x3F}).t("Rossi S.p.A.", 30);
    b.t("saldo fattura", 30).t("S", 1).t("D", 1).t("N", 1);
    auto r = Giro<RecAssegno>(b);
    EXPECT_EQ(r.NrMovimento, 300);
    EXPECT_EQ(r.NrFoglio, 21);
    EXPECT_EQ(r.NrCarnet, 3);
    EXPECT_EQ(r.NrAssegno, 16909060);
    EXPECT_EQ(r.DataAssegno, "05/07/2001");
    EXPECT_EQ(r.IMPORTO, 0.5);
    EXPECT_EQ(r.traente, Pad("Rossi S.p.A.", 30));
    EXPECT_EQ(r.NoteAss, Pad("saldo fattura", 30));
    EXPECT_EQ(r.Allineato, "S");
    EXPECT_EQ(r.Disponibile, "D");
    EXPECT_EQ(r.AssegnoAnnullato, "N");
}

TEST(Record, TassiCreditori) {
    Byte b;
    b.t("01/01/2001", 10).t("01/04/2001", 10).t("01/07/2001", 10).t("01/10/2001", 10);
    b.t("__/__/____", 10).n({0, 0, 0xE4, 0x40}).n({0, 0, 0xC0, 0x3F}).n({0, 0, 0x20, 0x40});
    b.n({0, 0, 0x80, 0x3E}).n({0, 0, 0xA0, 0x40});
    auto r = Giro<RecTassiCreditori>(b);
    EXPECT_EQ(r.DataC1, "01/01/2001");
    EXPECT_EQ(r.DataC2, "01/04/2001");
    EXPECT_EQ(r.DataC3, "01/07/2001");
    EXPECT_EQ(r.DataC4, "01/10/2001");
    EXPECT_EQ(r.DataC5, "__/__/____");
    EXPECT_EQ(r.PerC1, 7.125f);
    EXPECT_EQ(r.PerC2, 1.5f);
    EXPECT_EQ(r.PerC3, 2.5f);
    EXPECT_EQ(r.PerC4, 0.25f);
    EXPECT_EQ(r.PerC5, 5.0f);
}

TEST(Record, TassiDebitori) {
    Byte b;
    b.t("01/01/2001", 10).t("01/02/2001", 10).t("01/03/2001", 10).t("01/04/2001", 10);
    b.t("01/05/2001", 10);
    // 1 to 8, 10 and 12 as 32-bit floats.
    b.n({0, 0, 0x80, 0x3F}).n({0, 0, 0x00, 0x40}).n({0, 0, 0x40, 0x40}).n({0, 0, 0x80, 0x40});
    b.n({0, 0, 0xA0, 0x40}).n({0, 0, 0xC0, 0x40}).n({0, 0, 0xE0, 0x40}).n({0, 0, 0x00, 0x41});
    b.n({0, 0, 0x20, 0x41}).n({0, 0, 0x40, 0x41});
    auto r = Giro<RecTassiDebitori>(b);
    EXPECT_EQ(r.DATAD1, "01/01/2001");
    EXPECT_EQ(r.DATAD2, "01/02/2001");
    EXPECT_EQ(r.DATAD3, "01/03/2001");
    EXPECT_EQ(r.DATAD4, "01/04/2001");
    EXPECT_EQ(r.DATAD5, "01/05/2001");
    const float attese[] = {1, 2, 3, 4, 5, 6, 7, 8, 10, 12};
    const float lette[] = {r.PerD1, r.PerD2, r.PerD3, r.PerD4, r.PerD5,
                           r.PerD6, r.PerD7, r.PerD8, r.PerD9, r.PerD10};
    for (int k = 0; k < 10; ++k) EXPECT_EQ(lette[k], attese[k]) << "PerD" << k + 1;
}

TEST(Record, OpzioniCalcolo) {
    Byte b;
    b.t("2", 1).n({0x19, 0x00}).t("http://www.banca.it", 100).t("1", 1).t("2", 1);
    b.n({0x03, 0x00});
    auto r = Giro<RecOpzioniCalcolo>(b);
    EXPECT_EQ(r.FrequenzaChiusura, "2");
    EXPECT_EQ(r.NrScritt, 25);
    EXPECT_EQ(r.IndInter, Pad("http://www.banca.it", 100));
    EXPECT_EQ(r.GiorniDebitori, "1");
    EXPECT_EQ(r.GiorniCreditori, "2");
    EXPECT_EQ(r.Divisore, 3);
}

TEST(Record, OneriPassivi) {
    Byte b;
    b.n({0, 0, 0x00, 0x3F}).n({0, 0, 0x80, 0x3F}).n({0, 0, 0xC0, 0x3F}).n({0, 0, 0x00, 0x40});
    b.n({0, 0, 0x20, 0x40}).n({0, 0, 0x40, 0x40}).n({0, 0, 0x90, 0x40});
    b.t("Spese bancarie", 25).t("Bolli", 25).t("4", 1).t("6", 1);
    auto r = Giro<RecOneriPassivi>(b);
    EXPECT_EQ(r.Per1, 0.5f);
    EXPECT_EQ(r.Per2, 1.0f);
    EXPECT_EQ(r.Per3, 1.5f);
    EXPECT_EQ(r.Per4, 2.0f);
    EXPECT_EQ(r.Per5, 2.5f);
    EXPECT_EQ(r.Per6, 3.0f);
    EXPECT_EQ(r.Per7, 4.5f);
    EXPECT_EQ(r.Descr3, Pad("Spese bancarie", 25));
    EXPECT_EQ(r.Descr4, Pad("Bolli", 25));
    EXPECT_EQ(r.ApplicaDescr3, "4");
    EXPECT_EQ(r.ApplicaDescr4, "6");
}

TEST(Record, SpeseVarie) {
    Byte b;
    // 1 to 7 as doubles.
    b.n({0, 0, 0, 0, 0, 0, 0xF0, 0x3F}).n({0, 0, 0, 0, 0, 0, 0x00, 0x40});
    b.n({0, 0, 0, 0, 0, 0, 0x08, 0x40}).n({0, 0, 0, 0, 0, 0, 0x10, 0x40});
    b.n({0, 0, 0, 0, 0, 0, 0x14, 0x40}).n({0, 0, 0, 0, 0, 0, 0x18, 0x40});
    b.n({0, 0, 0, 0, 0, 0, 0x1C, 0x40});
    b.t("1023456", 7).t("Bollo", 25).t("Commissioni", 25);
    auto r = Giro<RecSpeseVarie>(b);
    const double importi[] = {r.IMPORTO1, r.IMPORTO2, r.IMPORTO3, r.IMPORTO4,
                              r.IMPORTO5, r.IMPORTO6, r.IMPORTO7};
    for (int k = 0; k < 7; ++k) EXPECT_EQ(importi[k], k + 1) << "IMPORTO" << k + 1;
    const std::string frequenze[] = {r.Frequenza1, r.Frequenza2, r.Frequenza3, r.Frequenza4,
                                     r.Frequenza5, r.Frequenza6, r.Frequenza7};
    const char* attese[] = {"1", "0", "2", "3", "4", "5", "6"};
    for (int k = 0; k < 7; ++k) EXPECT_EQ(frequenze[k], attese[k]) << "Frequenza" << k + 1;
    EXPECT_EQ(r.Descr1, Pad("Bollo", 25));
    EXPECT_EQ(r.Descr2, Pad("Commissioni", 25));
}

// A record never written is all zero bytes: its texts read as blanks and write back so.
TEST(Record, ByteZeroSonoVuoti) {
    const std::vector<unsigned char> zeri(RecCausale::Lunghezza, 0);
    RecCausale r;
    r.CodCausale = "AS";
    Decodifica(r, zeri.data());
    EXPECT_EQ(r.Numero, 0);
    EXPECT_EQ(r.CodCausale, "     ");
    EXPECT_EQ(r.SoggettoCosto, " ");
    std::vector<unsigned char> scritti(RecCausale::Lunghezza);
    Codifica(r, scritti.data());
    std::vector<unsigned char> atteso(RecCausale::Lunghezza, ' ');
    atteso[0] = atteso[1] = 0;
    EXPECT_EQ(scritti, atteso);
}

TEST(Fisso, CopiaGiustificata) {
    struct Riga {
        const char* nome;
        std::string valore, atteso;
    };
    const Riga righe[] = {
        {"padded", "AS", "AS   "},
        {"cut", "ABCDEFG", "ABCDE"},
        {"exact", "ABCDE", "ABCDE"},
        {"empty", "", "     "},
        {"accents count one each", "caffè", "caffè"},
        {"cut after an accent", "città!", "città"},
        {"leading blanks kept", "  x", "  x  "},
    };
    for (const Riga& r : righe) {
        Fisso<5> f;
        f = r.valore;
        EXPECT_EQ(f.Testo(), r.atteso) << r.nome;
        EXPECT_EQ(Fisso<5>(r.valore).Testo(), r.atteso) << r.nome;
    }
}

TEST(Fisso, ConfrontiEConversioni) {
    Fisso<1> flag = "S";
    EXPECT_TRUE(flag == "S");
    EXPECT_FALSE(flag == "N");
    EXPECT_TRUE(Fisso<1>() == " ");

    Fisso<3> codice = "S";
    EXPECT_FALSE(codice == "S");
    EXPECT_TRUE(codice == "S  ");
    EXPECT_TRUE(codice == std::string("S  "));
    EXPECT_TRUE(codice == Fisso<3>("S"));
    EXPECT_TRUE(codice != Fisso<3>("N"));

    Fisso<12> lungo = "ABCDEFGHIJ";
    Fisso<4> corto;
    corto = lungo;
    EXPECT_EQ(corto.Testo(), "ABCD");
    lungo = corto;
    EXPECT_EQ(lungo.Testo(), "ABCD        ");

    const std::string& testo = lungo;
    EXPECT_EQ(testo.size(), 12u);
}

TEST(Cp1252, ByteECaratteri) {
    struct Riga {
        const char* nome;
        unsigned char byte;
        std::string utf8;
    };
    const Riga righe[] = {
        {"ASCII", 0x41, "A"},
        {"e grave", 0xE8, "è"},
        {"a grave", 0xE0, "à"},
        {"euro", 0x80, "€"},
        {"unassigned 81", 0x81, "\xC2\x81"},
        {"unassigned 8D", 0x8D, "\xC2\x8D"},
        {"unassigned 8F", 0x8F, "\xC2\x8F"},
        {"unassigned 90", 0x90, "\xC2\x90"},
        {"unassigned 9D", 0x9D, "\xC2\x9D"},
        {"left quote", 0x91, "‘"},
        {"y diaeresis", 0x9F, "Ÿ"},
        {"no-break space", 0xA0, "\xC2\xA0"},
        {"y acute last", 0xFF, "ÿ"},
    };
    for (const Riga& r : righe) {
        EXPECT_EQ(Utf8DaCp1252(&r.byte, 1), r.utf8) << r.nome;
        unsigned char scritto = 0;
        Cp1252DaUtf8(r.utf8, &scritto, 1);
        EXPECT_EQ(scritto, r.byte) << r.nome;
    }
}

TEST(Cp1252, OgniByteTornaUguale) {
    for (int b = 0; b < 256; ++b) {
        auto byte = static_cast<unsigned char>(b);
        std::string testo = Utf8DaCp1252(&byte, 1);
        unsigned char scritto = 0;
        Cp1252DaUtf8(testo, &scritto, 1);
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
        {"CJK", "中", "?   "},
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
