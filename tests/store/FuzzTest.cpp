// Random bytes through every reader of typed text and every record: no crash and no undefined
// behaviour (the sanitizer build runs this too), only the classic failures.
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
void SenzaCrash(const std::function<void()>& azione) {
    int numero = NumeroGuasto(azione);
    EXPECT_TRUE(numero == 0 || numero == 5 || numero == 6 || numero == 13) << numero;
}

// Any bytes decode, and after one pass through the record they are stable.
template <class... R> void RecordCasuali(std::mt19937& caso) {
    auto giro = [&]<class T>(T primo, T secondo) {
        Byte byte(T::Lunghezza), una(T::Lunghezza), due(T::Lunghezza);
        for (auto& b : byte) b = static_cast<unsigned char>(caso());
        Decodifica(primo, byte.data());
        Codifica(primo, una.data());
        Decodifica(secondo, una.data());
        Codifica(secondo, due.data());
        EXPECT_EQ(una, due) << typeid(T).name();
    };
    for (int n = 0; n < 1000; ++n) (giro(R{}, R{}), ...);
}
} // namespace

TEST(Fuzz, TestiERecordCasuali) {
    std::mt19937 caso(20240307);
    // The characters that make the readers take their longer ways, and now and then any byte.
    const std::string utili = "0123456789/_.,-+eEdD ()#\"\\;\t\xC3\xA0\xE2\x82\xAC";
    for (int giro = 0; giro < 8000; ++giro) {
        std::string testo, modello;
        for (std::string* t : {&testo, &modello})
            for (int n = caso() % 25; n > 0; --n)
                *t += caso() % 4 ? utili[caso() % utili.size()] : static_cast<char>(caso());
        SenzaCrash([&] { NumeroData(testo); });
        SenzaCrash([&] { DividiData(testo); });
        SenzaCrash([&] { GiornoCalendario(testo); });
        SenzaCrash([&] { ImportoDaTesto(testo); });
        SenzaCrash([&] { Format(Val(testo), modello); });
        const double bit = std::bit_cast<double>(std::uint64_t{caso()} << 32 | caso());
        SenzaCrash([&] { Format(bit, modello); });
        SenzaCrash([&] { Str(bit); });
        int n = static_cast<int>(caso() % 31);
        EXPECT_EQ(Left(testo, n) + Mid(testo, n + 1), testo);
        EXPECT_EQ(UCase(testo).size(), testo.size());
        // A field keeps its width whatever it is given, and its copies across widths agree.
        Fisso<30> campo = testo;
        Fisso<5> stretto{campo};
        Fisso<10> dieci = testo, copia = dieci;
        dieci = "x";
        EXPECT_EQ(campo.Testo() + stretto.Testo() + copia.Testo(),
                  Giustifica(testo, 30) + Giustifica(testo, 5) + Giustifica(testo, 10));
        Byte scritti(30);
        campo.Codifica(scritti.data());
        campo = stretto;
        EXPECT_EQ(campo.Testo(), Giustifica(Giustifica(testo, 5), 30));
    }
    RecordCasuali<RecMovimento, RecTotali, RecRiporto, RecChiusura, RecConto, RecCausale,
                  RecValuta, RecImposta, RecAccesso, RecColori, RecCarnet, RecAssegno,
                  RecTassiCreditori, RecTassiDebitori, RecOpzioniCalcolo, RecOneriPassivi,
                  RecSpeseVarie, RecIntero>(caso);
}
