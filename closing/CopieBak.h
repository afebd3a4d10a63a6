#pragma once
// The nine files of an account that the close saves, its undo brings back and a backup carries,
// and the one set of working copies Bak.* beside the program.
#include <array>

// In the order in which they are copied: .ORD, .FOG, .MOV, .MOR, .TOT, .NRC, .CAR, .NRF, .RIP.
extern const std::array<const char*, 9> EstensioniCopia;

// The nine files of the open account over the earlier Bak.* set. Each copy and the program
// directory reach the disk before this returns, so that a close cut short by a crash or a power
// cut still finds a whole set to undo from.
void CopieBak();
