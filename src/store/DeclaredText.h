// Marks a text the user reads where it is declared in a library without Qt, so that the translation tools gather
// it into the language files beside the interface's own texts. The mark leaves the English text as it is; the
// screen looks it up in the language in force when it shows it.
#pragma once

// Written like Qt's QT_TRANSLATE_NOOP(context, text), which lupdate is told to read it as; the context is always
// "Sonalys", the one context of the program's texts.
#define SONALYS_TEXT(context, text) text
