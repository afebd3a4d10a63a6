#pragma once
// The operations on the cheque books behind Form3: the new book with its ten sheets, the change
// of a book with the renumbering of its sheets and their movements, and the deletion of a book
// with its sheets and movements.

// Carnet[NumCarnet] written at its record and counted in .NRC, its sheets made, the list of the
// books refilled.
void ScriviNuovoCarnet();
// Ten new sheets after the last one, numbered from NrInf of Form3, for the book of its label.
void CreaFogli();
// The book CarnetCorrente takes the fields of Form3; its sheets are numbered again from NrInf,
// and the movements whose NrDoc held an old number take the new one.
void ModificaCarnet(const long (&vecchiNumeri)[11]);
// After a second question: the movements of the sheets and of the cost, the sheets and the book
// CarnetCorrente leave their files, which close up.
void CancellaCarnet();
