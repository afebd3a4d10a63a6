#include "store/Piattaforma.h"

#include <cassert>

namespace {
PortaPiattaforma* porta_in_uso = nullptr;
}

PortaPiattaforma& Piattaforma() {
    assert(porta_in_uso && "no platform port set");
    return *porta_in_uso;
}

void ImpostaPiattaforma(PortaPiattaforma* porta) { porta_in_uso = porta; }

std::vector<Risposta> RisposteDi(Pulsanti insieme) {
    switch (insieme) {
    case Pulsanti::OK: return {Risposta::OK};
    case Pulsanti::OKAnnulla: return {Risposta::OK, Risposta::Annulla};
    case Pulsanti::InterrompiRiprovaIgnora:
        return {Risposta::Interrompi, Risposta::Riprova, Risposta::Ignora};
    case Pulsanti::SiNoAnnulla: return {Risposta::Si, Risposta::No, Risposta::Annulla};
    case Pulsanti::SiNo: return {Risposta::Si, Risposta::No};
    case Pulsanti::RiprovaAnnulla: return {Risposta::Riprova, Risposta::Annulla};
    }
    return {Risposta::OK};
}

std::string NomeRisposta(Risposta r) {
    switch (r) {
    case Risposta::OK: return "OK";
    case Risposta::Annulla: return "Annulla";
    case Risposta::Interrompi: return "Interrompi";
    case Risposta::Riprova: return "Riprova";
    case Risposta::Ignora: return "Ignora";
    case Risposta::Si: return "Si";
    case Risposta::No: return "No";
    }
    return "OK";
}
