#pragma once
// What the interest tables share: the open account's movements in memory, rows in columns.
#include "tests/Ambiente.h"

// A movement on one date for operation and value.
inline RecMovimento M(const char* data, double importo, const char* dA, const char* sospeso = "N",
                      const char* causale = "VS") {
    return Mov(1, data, data, importo, dA, sospeso, causale);
}
inline void Movimenti(const std::vector<RecMovimento>& m) {
    Stato.NumMovimenti = static_cast<short>(m.size());
    for (std::size_t i = 0; i < m.size(); ++i)
        Stato.Movimenti[i + 1] = m[i];
}
// A text at the right of a column `n` wide.
inline std::string C(const std::string& s, std::size_t n = 16) {
    return std::string(n - s.size(), ' ') + s;
}
template <class Righe> bool Ha(const Righe& righe, const std::string& riga) {
    return std::find(righe.begin(), righe.end(), riga) != righe.end();
}
