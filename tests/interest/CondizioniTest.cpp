// The five condition files as Conferma of Form26 writes them, compared with records laid out
// byte by byte here, and the bad date that stops Conferma with nothing written.
#include "tests/Ambiente.h"

#include "interest/Form26.h"

#include <cstring>
#include <fstream>
#include <iterator>

namespace {
using Byte = std::vector<unsigned char>;

void Testo(Byte& b, std::size_t dove, const std::string& t) {
    std::memcpy(&b[dove], t.data(), t.size());
}
// Little-endian, whatever the host.
void Parola(Byte& b, std::size_t dove, std::uint64_t bit, int quanti) {
    for (int k = 0; k < quanti; ++k)
        b[dove + k] = static_cast<unsigned char>(bit >> (8 * k));
}
void Singolo(Byte& b, std::size_t dove, float x) {
    Parola(b, dove, std::bit_cast<std::uint32_t>(x), 4);
}
void Doppio(Byte& b, std::size_t dove, double x) {
    Parola(b, dove, std::bit_cast<std::uint64_t>(x), 8);
}
Byte Bianchi(std::size_t n) {
    return Byte(n, ' ');
}
Byte Zeri(std::size_t n) {
    return Byte(n, 0);
}
} // namespace

struct CondizioniTest : AmbienteConto {
    Form26& f() { return app->Form26; }
    Byte Leggi(const std::string& estensione) {
        std::ifstream in(File(estensione), std::ios::binary);
        return Byte(std::istreambuf_iterator<char>(in), {});
    }
};

TEST_F(CondizioniTest, ConfermaScriveICinqueRecord) {
    Stato.Cambio = 2; // typed amounts are halved on disk
    f().S.Show();
    for (auto [campo, testo] :
         std::vector<std::pair<Controllo*, std::string>>{{&f().DataC1, "01/01/2001"},
                                                         {&f().PerC1, "7,15"},
                                                         {&f().DataC2, "01/04/2001"},
                                                         {&f().PerC2, "2,5"},
                                                         {&f().DataC3, "01/05/2001"},
                                                         {&f().DataC4, "01/06/2001"},
                                                         {&f().DataC5, "01/07/2001"},
                                                         {&f().PerC5, "1"},
                                                         {&f().DATAD1, "02/01/2001"},
                                                         {&f().PerD1, "10"},
                                                         {&f().PerD6, "12,125"},
                                                         {&f().PerD10, "3"},
                                                         {&f().NrScritt, "-2"},
                                                         {&f().IndInter, "www.banca.it"},
                                                         {&f().Per1, "1"},
                                                         {&f().Per7, "0,5"},
                                                         {&f().Descr3, "Istruttoria"},
                                                         {&f().IMPORTO1, "10"},
                                                         {&f().IMPORTO7, "3"},
                                                         {&f().Descr2, "Bolli"}})
        campo->SetText(testo);
    f().Seme.SetValue(true);
    f().giorni(1).SetValue(true);
    f().giorni(2).SetValue(true);
    f().divisore(2).SetValue(true);
    f().Option13.SetValue(true);
    Stato.OneriPassivi.ApplicaDescr3 = "5"; // as Form28 leaves it
    f().OKi.Clicca();
    EXPECT_FALSE(f().S.Caricato());

    Byte iat = Zeri(70);
    Testo(iat, 0, "01/01/200101/04/200101/05/200101/06/200101/07/2001");
    Singolo(iat, 50, 7.15f);
    Singolo(iat, 54, 2.5f);
    Singolo(iat, 66, 1.0f);
    EXPECT_EQ(Leggi(".Iat"), iat);

    Byte ipa = Zeri(90);
    Testo(ipa, 0, "02/01/2001__/__/______/__/______/__/______/__/____");
    Singolo(ipa, 50, 10.0f);
    Singolo(ipa, 70, 12.125f);
    Singolo(ipa, 86, 3.0f);
    EXPECT_EQ(Leggi(".Ipa"), ipa);

    Byte opz = Bianchi(107);
    Testo(opz, 0, "2");
    Parola(opz, 1, 0xFFFE, 2);
    Testo(opz, 3, "www.banca.it");
    Testo(opz, 103, "21"); // 365 days for the debits, 360 for the credits
    Parola(opz, 105, 3, 2);
    EXPECT_EQ(Leggi(".Opz"), opz);

    Byte onp = Bianchi(80);
    std::memset(onp.data(), 0, 28);
    Singolo(onp, 0, 1.0f);
    Singolo(onp, 24, 0.5f);
    Testo(onp, 28, "Istruttoria");
    Testo(onp, 78, "5");
    EXPECT_EQ(Leggi(".Onp"), onp);

    Byte spe = Bianchi(113);
    std::memset(spe.data(), 0, 56);
    Doppio(spe, 0, 5.0);
    Doppio(spe, 48, 1.5);
    Testo(spe, 56, "0000001");
    Testo(spe, 88, "Bolli");
    EXPECT_EQ(Leggi(".spe"), spe);
}

TEST_F(CondizioniTest, ContoNuovoEDataErrata) {
    // A fresh account reads five empty records and writes them back with its two first dates.
    f().S.Show();
    EXPECT_EQ(f().DataC1.Text(), "__/__/____");
    EXPECT_EQ(f().PerC1.Text(), "0");
    f().DataC1.SetText("01/01/2001");
    f().DATAD1.SetText("01/01/2001");
    f().DATAD3.SetText("31/02/2001");
    porta.risposte.push_back(Risposta::OK);
    f().OKi.Clicca();
    // Nothing stored: the files are there as the opening made them, empty.
    for (const char* e : {".Iat", ".Ipa", ".Opz", ".Onp", ".spe"})
        EXPECT_EQ(Leggi(e), Byte{}) << e;
    EXPECT_EQ(f().DATAD3.Text(), "__/__/____");
    EXPECT_TRUE(f().DATAD3.HaFuoco());

    f().OKi.Clicca();
    Byte iat = Zeri(70), ipa = Zeri(90);
    Testo(iat, 0, "01/01/2001__/__/______/__/______/__/______/__/____");
    Testo(ipa, 0, "01/01/2001__/__/______/__/______/__/______/__/____");
    EXPECT_EQ(Leggi(".Iat"), iat);
    EXPECT_EQ(Leggi(".Ipa"), ipa);
    Byte opz = Bianchi(107);
    Testo(opz, 0, " ");
    Parola(opz, 1, 0, 2);
    Testo(opz, 103, "22");
    Parola(opz, 105, 0, 2); // no divisor chosen
    EXPECT_EQ(Leggi(".Opz"), opz);
    Byte spe = Bianchi(113);
    std::memset(spe.data(), 0, 56);
    Testo(spe, 56, "0000000");
    EXPECT_EQ(Leggi(".spe"), spe);
}
