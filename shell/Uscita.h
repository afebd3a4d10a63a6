#pragma once
// The end of the program from `esci` and `SSCommand2`: a question first. Nothing is saved,
// since everything was written when it changed.
void Esci();
