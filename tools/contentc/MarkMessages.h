#pragma once

#include "tools/contentc/source/CommonMessages.h"

/// What is said about marks, molecules, videos and tools on pages, and about what stands round them.
namespace contentc::say {

inline constexpr Message markIsOpen{"'{{' is not closed on its line", "το «{{» δεν κλείνει στη γραμμή του"};
inline constexpr Message notALineMark{
    "'{1}' is not '{{video NAME}}' or '{{molecule NAME}}' on a line of its own",
    "το «{1}» δεν είναι «{{βίντεο ΟΝΟΜΑ}}» ή «{{μόριο ΟΝΟΜΑ}}» μόνο του σε μια γραμμή"};
inline constexpr Message notAToolMark{
    "'{1}' is not '{{tool NAME}}' on a line of its own, with settings as 'name=\"value\"'",
    "το «{1}» δεν είναι «{{εργαλείο ΟΝΟΜΑ}}» μόνο του σε μια γραμμή, με ρυθμίσεις «name=\"τιμή\"» "
    "(λατινικά)"};
inline constexpr Message unknownMark{"unknown mark '{1}'", "άγνωστο σημάδι «{1}»"};
inline constexpr Message linkInsideLink{"'[[' inside a glossary link", "«[[» μέσα σε παραπομπή στο γλωσσάρι"};
inline constexpr Message noLinkHere{"a glossary link works only on a page of a section",
                                    "παραπομπές στο γλωσσάρι υπάρχουν μόνο στις σελίδες των ενοτήτων"};
inline constexpr Message linkWithoutBar{"'[[' without '|'", "«[[» χωρίς «|»"};
inline constexpr Message linkWithoutWords{"a glossary link without words",
                                          "παραπομπή στο γλωσσάρι χωρίς λέξεις"};
inline constexpr Message linkIsOpen{"'[[' is not closed on its line", "το «[[» δεν κλείνει στη γραμμή του"};
inline constexpr Message tildeWouldLink{"'~' would be taken for a glossary link",
                                        "το «~» θα έμοιαζε με παραπομπή στο γλωσσάρι"};
inline constexpr Message noVideoHere{"a video works only on a page of a section",
                                     "βίντεο υπάρχουν μόνο στις σελίδες των ενοτήτων"};
inline constexpr Message noMoleculeHere{"a molecule works only on a page of a section",
                                        "μόρια υπάρχουν μόνο στις σελίδες των ενοτήτων"};
inline constexpr Message noToolHere{"a tool works only on a page of a section",
                                    "εργαλεία υπάρχουν μόνο στις σελίδες των ενοτήτων"};
inline constexpr Message quizWithoutBox{"the questions of a quiz stand in a box '::: quiz'",
                                        "οι ερωτήσεις ενός κουίζ γράφονται σε πλαίσιο «::: ερωτήσεις»"};
inline constexpr Message secondMolecule{"a second molecule on the page", "δεύτερο μόριο στη σελίδα"};
inline constexpr Message pageLineIsTooLong{"line has {1} bytes, at most {2} are allowed",
                                           "η γραμμή έχει {1} χαρακτήρες, επιτρέπονται το πολύ {2}"};
inline constexpr Message placeholderIsMissing{"placeholder '{1}' is missing", "λείπει το «{1}»"};
inline constexpr Message quizWithoutQuestions{"a quiz without questions", "κουίζ χωρίς ερωτήσεις"};
inline constexpr Message quizBegins{"a quiz begins with a question: '? …'",
                                    "ένα κουίζ αρχίζει με ερώτηση: «? …»"};
inline constexpr Message notAQuizLine{"a line of a quiz begins with '?', '-', '+', '>' or '!'",
                                      "μια γραμμή κουίζ αρχίζει με «?», «-», «+», «>» ή «!»"};
inline constexpr Message tooFewAnswers{"a question needs two answers or more",
                                       "μια ερώτηση χρειάζεται δύο απαντήσεις ή περισσότερες"};
inline constexpr Message oneRightAnswer{"a question needs one right answer: '+ …'",
                                        "μια ερώτηση χρειάζεται μία σωστή απάντηση: «+ …»"};

}  // namespace contentc::say
