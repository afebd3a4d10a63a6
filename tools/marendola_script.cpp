// marendola-script FILE (or - for standard input): plays a script on the program's screens
// without a display and writes what the user would see.
#include "tools/Copione.h"
#include "tools/Memoria.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

// Far fewer page faults at the open of a big account; before main, as the state's tables are.
[[gnu::constructor(101)]] static void Memoria() { PreparaMemoria(); }

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: marendola-script FILE|-\n";
        return 2;
    }
    std::string nome = argv[1];
    if (nome == "-") return EseguiCopione(std::cin, std::cout, std::cerr);
    std::ifstream copione(nome);
    if (!copione) {
        std::cerr << "marendola-script: cannot read " << nome << '\n';
        return 1;
    }
    return EseguiCopione(copione, std::cout, std::cerr,
                         std::filesystem::path(nome).parent_path().string());
}
