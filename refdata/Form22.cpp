#include "refdata/Form22.h"

#include "refdata/Conti.h"
#include "refdata/Form10.h"
#include "refdata/Riepilogo.h"
#include "reports/Stampe.h"
#include "shell/Colori.h"
#include "store/Testo.h"

Form22::Form22() {
    Dataop(0).SetText("Data Op.");
    Dataop(1).SetText("Data Valuta");
    Dataop(0).SetValue(true);
    List1.Sorted = true;

    S.Load = [this] {
        ColoriElenchi({&List1});
        ElencaRiepilogo();
    };
    Dataop(0).Click = ElencaRiepilogo;
    Dataop(1).Click = ElencaRiepilogo;
    // The number stands in the first twelve characters of the line.
    List1.DblClick = [this] {
        short indice = CercaConto(Trim(Left(List1.List(List1.ListIndex()), 12)));
        if (indice > 0) MostraSchedaSolaLettura(indice);
    };
    PulStampe.Click = StampaRiepilogo;
    Command3D8.Click = [this] { S.UnloadMe(); };
}
