#include "shell/Help1.h"

#include "store/Cp1252.h"
#include "store/FileRecord.h"
#include "store/Guasto.h"

#include <fstream>
#include <iterator>
#include <string>

Help1::Help1() {
    // A missing text is a failure, as the program has always had it.
    S.Load = [this] {
        std::ifstream file(NomeFileProgramma("Help01.txt"), std::ios::binary);
        if (!file) Errore(53);
        std::string byte{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        std::string testo;
        for (char c :
             Utf8DaCp1252(reinterpret_cast<const unsigned char*>(byte.data()), byte.size()))
            if (c != '\r') testo += c;
        Text1.SetText(testo);
    };
}
