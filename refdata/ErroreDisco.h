#pragma once
// The program's one handler of file failures, and the drive and directory choosers of Form2 and
// Form7, whose handlers fail through it.
#include "screen/Schermo.h"

#include <functional>
#include <initializer_list>
#include <map>
#include <string>

// Tells the failure in a box titled "Errore Disco" and gives the user's choice: 0 Riprova,
// 1 Ignora, 2 OK, Annulla or Interrompi. A failure it has no text for gives 3, with no box.
int ErroreDisco(int numero);

// Runs the statements of a handler on the failure path of ErroreDisco. A failing statement
// closes all files and asks: Riprova runs it again, Ignora goes on with the next one, anything
// else restores the normal pointer and leaves the handler without a further word.
void EseguiConErroreDisco(std::initializer_list<std::function<void()>> istruzioni);

// A drive and directory chooser. With no drive letters, Drive1 is a combo of the mounted
// volumes and Dir1 a list of the chosen folder: first the folder itself, then ".." while it is
// below the volume's root, then its sub-folders by name. A double click or Enter on ".." or on a
// sub-folder enters it. Each volume remembers the last folder chosen on it, as each drive had
// its current directory: choosing the volume again goes back there, a new one starts at its root.
struct SceltaDirectory {
    Controllo& Drive1;
    Controllo& Dir1;
    std::string Percorso;    // the folder of Dir1: no "/" at the end but for the root
    std::map<std::string, std::string> Correnti;    // the last folder of each volume
    std::function<void()> Change;    // Dir1's folder changed
};

// Sets the handlers of Drive1 and Dir1; once, when the screen is made.
void CollegaScelta(SceltaDirectory& scelta);

// At the screen's load: the volumes, the one holding `cartella`, and Dir1 on `cartella` with no
// change fired. A folder that can't be read shows without sub-folders: the reading of the
// accounts that follows tells the user.
void PreparaScelta(SceltaDirectory& scelta, const std::string& cartella);

// Dir1 set from Drive1: the folder that the chosen volume remembers, or its root. Nothing
// happens when that is where Dir1 stands already.
void DirDaDrive(SceltaDirectory& scelta);

// Dir1 on `cartella`: reads its sub-folders, then fires Change when the folder is another. A
// folder that can't be read is the failure of the system's error, and Dir1 stays.
void ImpostaPercorso(SceltaDirectory& scelta, const std::string& cartella);

// The folder as a data directory: with its "/" at the end.
std::string ConBarra(const std::string& cartella);

// What Form2 and Form7 do on a change of Dir1 or Drive1 and when they come to the front:
// `NomeFile` shows the folder, the open account is closed, the folder becomes the data
// directory and its accounts are read.
void DirectoryScelta(const SceltaDirectory& scelta, Controllo& NomeFile);
