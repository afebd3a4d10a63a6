#include "tests/Ambiente.h"

#include "cheques/ElenchiAssegni.h"

#include <cstring>
#include <fstream>
#include <iterator>

// Today is 05/07/2001; one account "123", opened empty.

namespace {
std::string Contenuto(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::string I16(int v) {
    return {static_cast<char>(v & 0xFF), static_cast<char>((v >> 8) & 0xFF)};
}
std::string I32(long v) {
    return I16(v & 0xFFFF) + I16((v >> 16) & 0xFFFF);
}
std::string F64(double v) {
    char b[8];
    std::memcpy(b, &v, 8); // the build machines are little-endian, as the files are
    return {b, 8};
}
} // namespace

class CarnetTest : public AmbienteConto {
  protected:
    void SetUp() override {
        AmbienteConto::SetUp();
        app->Form9.S.Show();
    }

    void NuovoCarnet(const std::string& data, const std::string& costo, const std::string& inf) {
        Form3& f = app->Form3;
        f.S.Show();
        f.DataCarnet.SetText(data);
        f.CostoCarnet.SetText(costo);
        f.NrInf.SetText(inf);
        f.Salva.Clicca();
    }
};

TEST_F(CarnetTest, IlNuovoCarnetSulDiscoBytePerByte) {
    NuovoCarnet("01/03/2001", "2", "1000");

    // 2 + 2 + 10 + 8 + 4 + 4 + 1 + 2 + 1 + 2 = 36: the cost movement 1, book 1, 1000 to
    // 1000 + 10 - 1 = 1009, open, ten sheets out, cost not aligned, the reserved 0.
    EXPECT_EQ(Contenuto(File(".CAR")), I16(1) + I16(1) + "01/03/2001" + F64(2) + I32(1000) + I32(1009) +
                                      "N" + I16(10) + "N" + I16(0));
    EXPECT_EQ(Contenuto(File(".NRC")), I16(1));
    EXPECT_EQ(Contenuto(File(".NRF")), I16(10));
    const std::string fog = Contenuto(File(".FOG"));
    ASSERT_EQ(fog.size(), 10u * 91);
    // Sheet 10: no movement, its own record 10, book 1, cheque 1009, not issued, 0, two blank
    // texts of 30, not aligned, available, not cancelled.
    EXPECT_EQ(fog.substr(9 * 91), I16(0) + I16(10) + I16(1) + I32(1009) + "00/00/0000" + F64(0) +
                                      std::string(60, ' ') + "NSN");

    // The "CA" movement: suspended and outgoing whatever the causale says.
    const RecMovimento m = Leggi(".MOV").at(0);
    EXPECT_EQ(m.Causale, "CA   ");
    EXPECT_EQ(m.IMPORTO, 2);
    EXPECT_EQ(RTrim(m.NrDoc), "1");
    EXPECT_EQ(RTrim(m.DescMovim), "Carnet nr. 1-1000");
    EXPECT_EQ(m.Sospeso, "S");
    EXPECT_EQ(m.D_A, "U");
}

TEST_F(CarnetTest, IRifiutiNonScrivonoNulla) {
    NuovoCarnet("01/03/2001", "2", "1000");
    const auto prima = Cartella(radice);

    // A duplicate first number, an empty date, a bad date.
    NuovoCarnet("02/03/2001", "", "1000");
    NuovoCarnet(DataVuotaMaschera, "", "2000");
    NuovoCarnet("31/04/2001", "", "2000");
    EXPECT_EQ(Cartella(radice), prima);

    // A cheque dated before its book, and Cancel on the question of the zero amount.
    Form15& a = app->Form15;
    a.S.Show();
    a.DataAssegno.SetText("28/02/2001");
    a.IMPORTO.SetText("50");
    a.Salva.Clicca();
    a.DataAssegno.SetText("01/03/2001");
    a.IMPORTO.SetText("0");
    porta.risposte = {Risposta::Annulla};
    a.Salva.Clicca();
    a.S.Hide();
    EXPECT_EQ(Cartella(radice), prima);

    // Cancel on either question of the deletion.
    Form3& f = app->Form3;
    Stato.CarnetCorrente = 1;
    porta.risposte = {Risposta::Annulla};
    f.Del.Enabled = true;
    f.Del.Clicca();
    porta.risposte = {Risposta::OK, Risposta::Annulla};
    f.Del.Enabled = true;
    f.Del.Clicca();
    EXPECT_EQ(Cartella(radice), prima);
}

TEST_F(CarnetTest, CambioECancellazioneRinumeranoFogliEMovimenti) {
    NuovoCarnet("01/03/2001", "1", "1000"); // movement 1, sheets 1 to 10
    NuovoCarnet("01/03/2001", "1", "3000"); // movement 2, sheets 11 to 20
    NuovoCarnet("01/03/2001", "1", "5000"); // movement 3, sheets 21 to 30
    Form15& a = app->Form15;
    a.S.Show(); // the last book, its first sheet 5000 (sheet 21)
    a.DataAssegno.SetText("02/03/2001");
    a.IMPORTO.SetText("10");
    a.Salva.Clicca(); // movement 4, NrDoc "5000"

    // Book 3 from 5000 to 7000: its sheets 7000 to 7009, and the NrDoc of its cheque follows.
    Stato.CarnetCorrente = 3;
    Form3& f = app->Form3;
    f.NrCarnet.SetText("3");
    f.DataCarnet.SetText("01/03/2001");
    f.CostoCarnet.SetText("1");
    f.NrInf.SetText("7000");
    f.Salva.Clicca();
    EXPECT_EQ(Stato.NumCarnet, 3);
    EXPECT_EQ(Stato.NumMovimenti, 4);
    EXPECT_EQ(Stato.Assegni[21].NrAssegno, 7000);
    EXPECT_EQ(Stato.Assegni[30].NrAssegno, 7009);
    EXPECT_EQ(Stato.Assegni[20].NrAssegno, 3009);
    EXPECT_EQ(RTrim(Leggi(".MOV").at(3).NrDoc), "7000");
    EXPECT_EQ(Stato.Carnet[3].NrFinale, 7009);

    // Book 2 deleted: its sheets and its cost movement go (4 - 1 = 3 movements), book 3 closes
    // up to number 2 while its sheets still say 3.
    Stato.CarnetCorrente = 2;
    porta.risposte = {Risposta::OK, Risposta::OK};
    f.Del.Enabled = true;
    f.Del.Clicca();
    EXPECT_EQ(Stato.NumMovimenti, 3);
    EXPECT_EQ(Numeri(Leggi(".MOV")).size(), 4u); // the old last record stays behind
    EXPECT_EQ(Stato.NumAssegni, 20);
    EXPECT_EQ(Stato.Assegni[11].NrAssegno, 7000);
    EXPECT_EQ(Stato.Assegni[11].NrFoglio, 11);
    EXPECT_EQ(Stato.Assegni[11].NrCarnet, 3);
    EXPECT_EQ(Stato.NumCarnet, 2);
    EXPECT_EQ(Stato.Carnet[2].NrCarnet, 2);
    EXPECT_EQ(Stato.Carnet[2].NrInf, 7000);
    EXPECT_EQ(Stato.Movimenti[3].NrOper, 3);
    EXPECT_EQ(RTrim(Stato.Movimenti[3].NrDoc), "7000");
}

// A count past the table: the read and the line past the end each tell their failure, and the
// list still takes the 500 books the table holds.
TEST_F(CarnetTest, UnContatoreOltreLaTabellaAvvisaEProsegue) {
    ScriviContatore(File(".NRC"), 501);
    Messaggi();
    ElencaCarnet();
    const std::string nove = "[] Errore numero 9 0 " + DescrizioneErrore(9) + " -> OK";
    EXPECT_EQ(Messaggi(), (std::vector<std::string>{nove, nove}));
    EXPECT_EQ(app->Form14.List1.ListCount(), 500);
}
