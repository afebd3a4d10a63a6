#pragma once
// A table of the application state: index 0 is never a valid entry and every search starts at 1.
// A subscript outside the bounds is the classic failure 9; the tables don't grow by themselves.
#include "store/Guasto.h"

#include <vector>

template <class T> struct Tabella {
    std::vector<T> righe;

    explicit Tabella(long limite = 0) { Ridimensiona(limite); }

    // The classic ReDim: indices 0 to limite, every entry cleared.
    void Ridimensiona(long limite) { righe.assign(static_cast<std::size_t>(limite + 1), T{}); }
    long Limite() const { return static_cast<long>(righe.size()) - 1; }

    T& operator[](long i) {
        if (i < 0 || i > Limite()) Errore(9);
        return righe[static_cast<std::size_t>(i)];
    }
    const T& operator[](long i) const {
        if (i < 0 || i > Limite()) Errore(9);
        return righe[static_cast<std::size_t>(i)];
    }
};
