#pragma once
// Two operations on the whole open account.

// The ties of the sheets to their books and movements set again from the numbers, after the
// Bak.* copies; nothing is compacted.
void RiordinaArchivi();

// After two questions, every file of the account goes and the account loads empty; its entry
// among the accounts stays.
void CancellaMovimentiConto();
