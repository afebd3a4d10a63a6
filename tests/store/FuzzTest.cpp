// Random bytes through every reader of typed text, every record and the file primitives: no
// crash and no undefined behaviour (the sanitizer build runs this too), only the classic
// failures.
#include "store/Date.h"
#include "store/Formato.h"
#include "store/RecordAnagrafe.h"
#include "store/RecordAssegni.h"
#include "store/RecordCondizioni.h"
#include "store/RecordRegistro.h"

#include "tests/Ambiente.h"

#include <bit>
#include <random>

namespace {
Byte Casuali(std::mt19937& caso, std::size_t quanti) {
    Byte v(quanti);
    for (auto& b : v) b = static_cast<unsigned char>(caso());
    return v;
}

// The characters that make the readers take their longer ways, and now and then any byte.
std::string TestoCasuale(std::mt19937& caso) {
    static const std::string utili = "0123456789/_.,-+eEdD ()#\"\\;\t\xC3\xA0\xE2\x82\xAC";
    std::string testo;
    for (int n = caso() % 25; n > 0; --n)
        testo += caso() % 4 ? utili[caso() % utili.size()] : static_cast<char>(caso());
    return testo;
}

void SenzaCrash(const std::function<void()>& azione) {
    int numero = NumeroGuasto(azione);
    EXPECT_TRUE(numero == 0 || numero == 5 || numero == 6 || numero == 13) << numero;
}

// Any bytes decode, and after one pass through the record they are stable. Files of any length,
// record boundaries or not, read and written through the primitives.
template <class R> void RecordCasuali(std::mt19937& caso, const fs::path& file) {
    for (int giro = 0; giro < 2000; ++giro) {
        R primo, secondo;
        Decodifica(primo, Casuali(caso, R::Lunghezza).data());
        Byte una(R::Lunghezza), due(R::Lunghezza);
        Codifica(primo, una.data());
        Decodifica(secondo, una.data());
        Codifica(secondo, due.data());
        ASSERT_EQ(una, due) << "round " << giro;
    }
    for (int giro = 0; giro < 50; ++giro) {
        ScriviFile(file, Casuali(caso, caso() % (3 * R::Lunghezza + 5)));
        std::vector<R> righe(6);
        ConRecord(file.string(), static_cast<int>(R::Lunghezza), 1, [&] {
            LeggiRecord(righe[5], 5, 1);
            LeggiRecords(righe, 1, 5, 1);
            ScriviRecord(righe[2], 2, 1);
        });
    }
}
} // namespace

TEST_F(Ambiente, TestiERecordCasuali) {
    std::mt19937 caso(20240307);
    for (int giro = 0; giro < 4000; ++giro) {
        const std::string testo = TestoCasuale(caso), modello = TestoCasuale(caso);
        SenzaCrash([&] { NumeroData(testo); });
        SenzaCrash([&] { DividiData(testo); });
        SenzaCrash([&] { GiornoCalendario(testo); });
        SenzaCrash([&] { ImportoDaTesto(testo); });
        SenzaCrash([&] { Format(Val(testo), modello); });
        const double bit = std::bit_cast<double>(std::uint64_t{caso()} << 32 | caso());
        SenzaCrash([&] { Format(bit, modello); });
        SenzaCrash([&] { Str(bit); });

        int n = static_cast<int>(caso() % 31);
        EXPECT_EQ(UCase(testo).size(), testo.size());
        EXPECT_EQ(Left(testo, n) + Mid(testo, n + 1), testo);
        // A field keeps its width whatever it is given, and its copies across widths agree.
        Fisso<30> campo = testo;
        Fisso<5> stretto{campo};
        Fisso<10> dieci = testo, copia = dieci;
        EXPECT_EQ(campo.Testo(), Giustifica(testo, 30));
        EXPECT_EQ(stretto.Testo(), Giustifica(testo, 5));
        dieci = "x";
        EXPECT_EQ(copia.Testo(), Giustifica(testo, 10));
        Byte scritti(30);
        campo.Codifica(scritti.data());
        campo = stretto;
        EXPECT_EQ(campo.Testo(), Giustifica(Giustifica(testo, 5), 30));
    }
    [&]<class... R>() {
        (RecordCasuali<R>(caso, radice / "dati"), ...);
    }.template operator()<RecMovimento, RecTotali, RecRiporto, RecChiusura, RecConto, RecCausale,
                          RecValuta, RecImposta, RecAccesso, RecColori, RecCarnet, RecAssegno,
                          RecTassiCreditori, RecTassiDebitori, RecOpzioniCalcolo,
                          RecOneriPassivi, RecSpeseVarie, RecIntero>();
}
