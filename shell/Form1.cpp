#include "shell/Form1.h"

// The paragraphs stand one a line. The third one joins "le" and "proprie" without a blank, as
// the program has always shown it.
Form1::Form1() {
    Text1.SetText("Complimenti per la scelta che avete effettuato! dimostrate sin da ora di "
                  "essere una persona intelligente. ");
    Text2.SetText(
        "Per poter utilizzare correttamente il programma occorre effettuare alcune operazioni "
        "di preparazione preliminari, selezionando la voce PREFERENZE del menù FILE occorre "
        "indicare al programma con quale valuta si intende lavorare ed il numero di cifre "
        "decimali che servono per la valuta scelta, quindi confermare e chiudere il programma "
        "per rendere attive le scelte effettuate, gli altri parametri sono facoltativi e "
        "dovranno essere immessi successivamente.\n"
        "Quindi indicare i dati del conto da gestire selezionando la voce GESTIONE CONTO dal "
        "menu FILE, procedere con l'immissione delle causali secondo leproprie esigenze al "
        "fine di personalizzare il programma.\n"
        "Prima di effettuare qualsiasi movimento occorre inserire i valori corretti delle "
        "valute con le quali si vuole lavorare rapportate con L'Euro.\n"
        "Se i valori inseriti nelle valute sono errati saranno errati anche i cambi con tutte "
        "le altre valute. \n"
        "Buon lavoro e grazie per aver scelto MARENDOLA per la gestione dei Vs. conti "
        "bancari.");
    Command1.Click = [this] { S.UnloadMe(); };
}
