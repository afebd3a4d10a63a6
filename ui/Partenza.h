#pragma once
// How the program starts as far as the windows are concerned.
#include <string>

// The program's own directory for its shared files, ending with "/".
std::string CartellaProgramma();
// With the Applicazione made: the start of the program on that directory, run as the first
// event, so that a failure of the start shows as any other.
void Parti(const std::string& cartellaProgramma);
