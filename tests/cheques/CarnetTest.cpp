#include "tests/Ambiente.h"

#include "cheques/ElenchiAssegni.h"

// A count past the table: the read and the line past the end each tell their failure, and the
// list still takes the 500 books the table holds.
TEST_F(AmbienteConto, UnContatoreDiCarnetOltreLaTabellaAvvisaEProsegue) {
    ScriviContatore(File(".NRC"), 501);
    ElencaCarnet();
    const std::string nove = "[] Errore numero 9 0 " + DescrizioneErrore(9) + " -> OK";
    EXPECT_EQ(Messaggi(), (std::vector<std::string>{nove, nove}));
    EXPECT_EQ(app->Form14.List1.ListCount(), 500);
}
