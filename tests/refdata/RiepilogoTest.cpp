// The summary of accounts, Form22, with no account: the flow with accounts is a script.
#include "tests/Ambiente.h"

#include "refdata/Conti.h"
#include "store/Testo.h"

namespace {
std::string Sp(int n) { return std::string(static_cast<std::size_t>(n), ' '); }
} // namespace

struct RiepilogoTest : AmbienteAvviato {
    Form22& r() { return app->Form22; }

    std::string Totali(const std::string& saldo, const std::string& fido,
                       const std::string& disponibile) {
        auto colonna = [](const std::string& s) {
            return Sp(15 - static_cast<int>(s.size())) + s;
        };
        return Sp(16) + "Totali " + colonna(saldo) + " " + colonna(fido) + " " +
               colonna(disponibile) + " ";
    }
};

TEST_F(RiepilogoTest, NessunConto) {
    Stato.FormatoImporti = "#,###,###,##0.00";
    r().S.Show();
    EXPECT_EQ(r().DataVis.Text(), "15-03-2001");
    EXPECT_EQ(r().List1.ListCount(), 0);
    EXPECT_EQ(r().Totali.Text(), Totali("0,00", "0,00", "0,00"));
    EXPECT_TRUE(r().Dataop(0).Value());
}

