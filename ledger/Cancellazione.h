#pragma once
// The deletion of the movement loaded in the entry line of Form9 (button Del, whatever its
// caption), and the compaction of .MOV that the cheque books share.
#include "store/RecordRegistro.h"

#include <functional>

// Asks first. On OK the survivors of .MOV are compacted and renumbered from 1, the count goes
// down and the table is read again. Either way the entry line is emptied and the list, .Ord and
// .TOT follow; the working balances, which left the movement out when it was loaded, stay so.
void CancellaMovimento();

// Every movement of the table for which `scarta` holds leaves .MOV; the others close up, each
// taking the next number and record. Returns the write counter, one past the last written.
short CompattaMovimenti(const std::function<bool(const RecMovimento&)>& scarta);
// NumMovimenti written to .MOR, and Movimenti read back from .MOV up to it.
void RileggiMovimenti();
