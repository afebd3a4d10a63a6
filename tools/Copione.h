#pragma once
// The interpreter of marendola-script: plays a script on the screens as a user would, through
// the platform without a display, and writes what the user would see.
//
// One command a line; a line whose first character is `#` is a comment, blank lines are skipped.
// TEXT is the rest of the line without the blanks at its ends, or a double-quoted string with
// \" and \\ when it has blanks at its ends or is empty. A reference is SCREEN.CONTROL, with an
// index for a member of a control array: MDIForm1.Saldi(1).
//
//   today DD/MM/YYYY         the program's today from now on (until then, the real date)
//   program DIR              the program directory, made when missing (before start)
//   cwd DIR                  the process's current directory (before start); both DIR are
//                            relative to the directory where the driver was started
//   file PATH [HEX...]       a file of those bytes, or a folder when PATH ends in "/",
//                            relative like DIR (before start): the odd files a user may leave
//   start                    the main window loads with its start-up
//   demo                     makes the screens Prova and ProvaModale, which only the scripts
//                            of the framework use
//   answer BUTTON            queues OK, Annulla, Riprova, Ignora, Interrompi, Si or No for the
//                            next message box; with none queued a box takes its default button
//   colour #RRGGBB|Annulla   queues the choice of the next colour dialog; with none queued the
//                            dialog is cancelled
//   installed PROGRAM        an outside program that the desktop has (the calculators)
//   menu NAME                chooses an entry of the main window's menus
//   show SCREEN              shows a screen as the program does (load, activate)
//   focus REF                moves the focus there
//   type REF TEXT            focus, then each character is a key for the control with the focus
//   key REF KEY              focus, then Enter, Tab, Backspace or Escape
//   set REF TEXT             focus, then the whole text at once (no key filter)
//   paste REF TEXT           focus, then TEXT pasted at the end, through the key filter
//   click REF                a click on a command, an option or a check box
//   select REF WHICH         a click on a line of a list or combo: #N (from 0) or the first
//                            line that begins with TEXT
//   dblclick REF WHICH       select, then a double click
//   dblclick REF             on any other control with a double-click handler: focus, then
//                            the double click
//   print REF|SCREEN|focus   a text, a caption, the lines of a list; options and check boxes
//                            add " on" or " off"
//   state REF|SCREEN         enabled|disabled visible|hidden; unloaded|hidden|shown|modal
//   messages, paper          what was shown, or printed, since the last time; three or more
//                            equal printed lines in a row come as one: {N times} LINE
//   records KIND FILE        the records of a file, one a line: its number, then its fields in
//                            disk order between bars (texts with their padding, numbers as
//                            written); KIND is Intero (a counter), Movimento, Totali,
//                            Riporto, Chiusura, Conto, Causale, Valuta, Imposta, Accesso,
//                            Colori, Carnet, Assegno, TassiCreditori, TassiDebitori,
//                            OpzioniCalcolo, OneriPassivi or SpeseVarie; FILE is relative to
//                            the directory where the driver was started, as for `program`
//   include FILE             runs the lines of FILE, relative to the directory of the script
//                            that includes it, as if they stood here: a set-up that several
//                            scripts share (not named *.script, which would run on its own)
//
// Tabs are the view's: the fields of every tab of a screen are reachable, the tab in front or not.
// The user's commands act only on a screen that is shown and, while a modal screen is up, only
// on that screen; they don't bring a screen to the front (`show` does). A control that is
// disabled or hidden takes no focus, no keys and no clicks. While the program holds a modal
// screen up, the next lines run inside it. Characters are typed in the program's code page.
#include <istream>
#include <ostream>
#include <string>

// Runs the script to its end, or until the program ends; returns the exit status: 0, or 1 after
// a fault of the script (an unknown command, screen or control, a list line not found, a modal
// screen still up at the end), whose reason goes to `errori`. `cartella` is where the script's
// includes are looked for.
int EseguiCopione(std::istream& copione, std::ostream& uscita, std::ostream& errori,
                  const std::string& cartella = ".");
