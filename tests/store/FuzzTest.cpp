// Random bytes through every reader of typed text, every record and the file primitives: no
// crash and no undefined behaviour (the sanitizer build runs this too), only the classic
// failures.
#include "store/Campi.h"
#include "store/Date.h"
#include "store/FileRecord.h"
#include "store/Formato.h"
#include "store/RecordAnagrafe.h"
#include "store/RecordAssegni.h"
#include "store/RecordCondizioni.h"
#include "store/RecordRegistro.h"
#include "store/Testo.h"

#include "tests/Ambiente.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace {
std::vector<unsigned char> Casuali(std::mt19937& caso, std::size_t quanti) {
    std::uniform_int_distribution<int> byte(0, 255);
    std::vector<unsigned char> v(quanti);
    for (auto& b : v) b = static_cast<unsigned char>(byte(caso));
    return v;
}

// The characters that make the readers take their longer ways, and now and then any byte.
std::string TestoCasuale(std::mt19937& caso) {
    static const std::string utili = "0123456789/_.,-+eEdD ()#\"\\;\t\xC3\xA0";
    std::uniform_int_distribution<int> lunghezza(0, 24), scelta(0, 3), byte(0, 255);
    std::uniform_int_distribution<size_t> utile(0, utili.size() - 1);
    std::string testo;
    for (int n = lunghezza(caso); n > 0; --n)
        testo += scelta(caso) == 0 ? static_cast<char>(byte(caso)) : utili[utile(caso)];
    return testo;
}

void SenzaCrash(const std::function<void()>& azione) {
    int numero = NumeroGuasto(azione);
    EXPECT_TRUE(numero == 0 || numero == 5 || numero == 6 || numero == 13) << numero;
}

// Any bytes decode, and after one pass through the record they are stable: a second decode and
// encode gives the same bytes again. Files of any length, record boundaries or not, read
// through the primitives.
template <class R> void RecordCasuali(std::mt19937& caso, const std::string& file) {
    for (int giro = 0; giro < 2000; ++giro) {
        auto byte = Casuali(caso, R::Lunghezza);
        R primo, secondo;
        Decodifica(primo, byte.data());
        std::vector<unsigned char> una(R::Lunghezza), due(R::Lunghezza);
        Codifica(primo, una.data());
        Decodifica(secondo, una.data());
        Codifica(secondo, due.data());
        ASSERT_EQ(una, due) << "round " << giro;
    }
    std::uniform_int_distribution<std::size_t> lunghezza(0, 3 * R::Lunghezza + 5);
    for (int giro = 0; giro < 50; ++giro) {
        ScriviFile(file, Casuali(caso, lunghezza(caso)));
        ApriRecord(file, static_cast<int>(R::Lunghezza), 1);
        R record;
        for (long n = 1; n <= 5; ++n) LeggiRecord(record, n, 1);
        std::vector<R> righe(6);
        LeggiRecords(righe, 1, 5, 1);
        ScriviRecord(righe[2], 2, 1);
        ChiudiRecord(1);
    }
}

template <class... R> struct TipiRecord {};
using TuttiIRecord = TipiRecord<RecMovimento, RecTotali, RecRiporto, RecChiusura, RecConto,
                                RecCausale, RecValuta, RecImposta, RecAccesso, RecColori,
                                RecCarnet, RecAssegno, RecTassiCreditori, RecTassiDebitori,
                                RecOpzioniCalcolo, RecOneriPassivi, RecSpeseVarie, RecIntero>;

using FuzzTest = Ambiente;

TEST(Fuzz, LettoriDiTestoCasuale) {
    std::mt19937 caso(20240307);
    std::uniform_int_distribution<std::uint64_t> bit;
    std::uniform_int_distribution<int> larghezza(0, 30);
    for (int giro = 0; giro < 4000; ++giro) {
        const std::string testo = TestoCasuale(caso);
        const std::string modello = TestoCasuale(caso);
        SenzaCrash([&] { NumeroData(testo); });
        SenzaCrash([&] { DividiData(testo); });
        SenzaCrash([&] { GiornoCalendario(testo); });
        SenzaCrash([&] { ImportoDaTesto(testo); });
        SenzaCrash([&] { Format(Val(testo), modello); });
        SenzaCrash([&] { Format(std::bit_cast<double>(bit(caso)), modello); });
        SenzaCrash([&] { Str(std::bit_cast<double>(bit(caso))); });

        int n = larghezza(caso);
        EXPECT_EQ(Len(Giustifica(testo, n)), n);
        EXPECT_EQ(UCase(testo).size(), testo.size());
        EXPECT_EQ(Left(testo, n) + Mid(testo, n + 1), testo);
        EXPECT_EQ(Mid(testo, 1, n), Left(testo, n));
    }
}

TEST_F(FuzzTest, RecordCasuali) {
    std::mt19937 caso(20010630);
    const std::string file = (radice / "dati").string();
    [&]<class... R>(TipiRecord<R...>) {
        (RecordCasuali<R>(caso, file), ...);
    }(TuttiIRecord{});
}

// Random bytes assigned as text: the field keeps its width and writes exactly its bytes.
TEST(Fuzz, TestiCasualiNeiCampiFissi) {
    std::mt19937 caso(1999);
    std::uniform_int_distribution<std::size_t> lunghezza(0, 40);
    for (int giro = 0; giro < 5000; ++giro) {
        auto byte = Casuali(caso, lunghezza(caso));
        Fisso<30> campo = std::string(byte.begin(), byte.end());
        unsigned char scritti[31];
        scritti[30] = 0x5A;
        campo.Codifica(scritti);
        ASSERT_EQ(scritti[30], 0x5A) << "round " << giro;
        Fisso<30> riletto;
        riletto.Decodifica(scritti);
        ASSERT_EQ(Len(riletto), 30) << "round " << giro;
    }
}
} // namespace
