#pragma once
// "Stampa" of Form26: the conditions of the open account on one page, as they are in the state.
void StampaCondizioni();
