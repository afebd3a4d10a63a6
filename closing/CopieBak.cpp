#include "closing/CopieBak.h"

#include "store/FileRecord.h"
#include "store/Stato.h"

const std::array<const char*, 9> EstensioniCopia = {".ORD", ".FOG", ".MOV", ".MOR", ".TOT",
                                                    ".NRC", ".CAR", ".NRF", ".RIP"};

void CopieBak() {
    for (const char* estensione : EstensioniCopia)
        CopiaFile(NomeFileConto(estensione), NomeFileProgramma(std::string("Bak") + estensione),
                  true);
    SincronizzaDirectory(Stato.PercorsoProgramma);
}
