#pragma once
// Every screen of the program, made once when the program starts. Screens reach each other
// through App(), as the design's screens call each other by name (App().Form9.DataOper).
#include "cheques/Form13.h"
#include "cheques/Form14.h"
#include "cheques/Form15.h"
#include "cheques/Form17.h"
#include "cheques/Form3.h"
#include "closing/Form18.h"
#include "closing/Form19.h"
#include "interest/Form26.h"
#include "interest/Form28.h"
#include "interest/Staffa.h"
#include "ledger/Form11.h"
#include "ledger/Form20.h"
#include "ledger/Form4.h"
#include "ledger/Form9.h"
#include "ledger/Giroconto.h"
#include "refdata/Convertore.h"
#include "refdata/FORM12.h"
#include "refdata/Form10.h"
#include "refdata/Form2.h"
#include "refdata/Form22.h"
#include "refdata/Form25.h"
#include "refdata/Form6.h"
#include "refdata/Form7.h"
#include "refdata/ManutCaus.h"
#include "reports/Form21.h"
#include "shell/Form1.h"
#include "shell/Form16.h"
#include "shell/Form23.h"
#include "shell/Form5.h"
#include "shell/Help1.h"
#include "shell/MDIForm1.h"
#include "shell/passWord.h"

struct Applicazione {
    ::MDIForm1 MDIForm1;
    ::Form1 Form1;
    ::Form9 Form9;
    ::Form2 Form2;
    ::Form7 Form7;
    ::Form10 Form10;
    ::Form6 Form6;
    ::FORM12 FORM12;
    ::ManutCaus ManutCaus;
    ::Form25 Form25;
    ::Convertore Convertore;
    ::Form11 Form11;
    ::Form20 Form20;
    ::Form22 Form22;
    ::Form19 Form19;
    ::Form18 Form18;
    ::Form26 Form26;
    ::Form28 Form28;
    ::Staffa Staffa;
    ::Form21 Form21;
    ::Form23 Form23;
    ::passWord passWord;
    ::Form5 Form5;
    ::Help1 Help1;
    ::Form16 Form16;
    ::Form3 Form3;
    ::Form15 Form15;
    ::Form14 Form14;
    ::Form13 Form13;
    ::Form17 Form17;
    ::Form4 Form4;
    ::Giroconto Giroconto;

    Applicazione();
    ~Applicazione();
    Applicazione(const Applicazione&) = delete;
    Applicazione& operator=(const Applicazione&) = delete;
};

// The application made last (there is one at a time).
Applicazione& App();
