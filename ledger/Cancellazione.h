#pragma once
// The deletion of the movement loaded in the entry line of Form9 (button Del, whatever its
// caption).

// Asks first. On OK the survivors of .MOV are compacted and renumbered from 1, the count goes
// down and the table is read again. Either way the entry line is emptied and the list, .Ord and
// .TOT follow; the working balances, which left the movement out when it was loaded, stay so.
void CancellaMovimento();
