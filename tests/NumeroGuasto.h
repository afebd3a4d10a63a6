#pragma once
// The number of the failure an action raises, 0 when it raises none.
#include "store/Guasto.h"

#include <functional>

inline int NumeroGuasto(const std::function<void()>& azione) {
    try {
        azione();
    } catch (const ErroreEsecuzione& e) {
        return e.numero;
    }
    return 0;
}
