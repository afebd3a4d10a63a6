#pragma once
// The undo of the last close of the open account, from the Bak.* set and .chi.
//
// The owner check compares the stored code, all 12 characters, with the data directory and the
// stem together, so that an account closed by this program is always refused; a .chi that holds
// that very text lets the files come back.
void AnnullaChiusura();
