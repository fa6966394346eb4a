#pragma once

#include "tools/contentc/source/CommonMessages.h"

/// What is said about how pages, sections and terms go together.
namespace contentc::say {

inline constexpr Message unknownSection{"no section is named '{1}'", "καμία ενότητα δεν λέγεται «{1}»"};
inline constexpr Message numberIsTaken{"the number {1} is taken already, by {2}",
                                       "τον αριθμό {1} τον έχει ήδη το {2}"};
inline constexpr Message takeNumber{"take {1}", "πάρε τον {1}"};
inline constexpr Message noStartPage{"start page of the section missing",
                                     "λείπει η αρχική σελίδα της ενότητας"};
inline constexpr Message makeStartPage{
    "make this file, with the lines 'title: {1}', '---' and a text",
    "φτιάξε αυτό το αρχείο, με τις γραμμές «τίτλος: {1}», «---» και ένα κείμενο"};
inline constexpr Message entryHasOtherTitle{"entry {1} of '{2}' has another title in {3}",
                                            "το λήμμα {1} του «{2}» έχει άλλον τίτλο στο {3}"};
inline constexpr Message noTermWithKey{"no glossary term has the key '{1}'",
                                       "κανένας όρος δεν έχει το κλειδί «{1}»"};
inline constexpr Message termIsUnused{"no page uses this term",
                                      "καμία σελίδα δεν χρησιμοποιεί αυτόν τον όρο"};
inline constexpr Message noTool{"no tool is named '{1}'", "κανένα εργαλείο δεν λέγεται «{1}»"};
inline constexpr Message noToolSetting{"tool '{1}' has no setting '{2}'; its settings: {3}",
                                       "το εργαλείο «{1}» δεν έχει ρύθμιση «{2}»· έχει: {3}"};
inline constexpr Message toolWithoutSettings{"tool '{1}' has no setting '{2}'; its settings: none",
                                             "το εργαλείο «{1}» δεν έχει ρύθμιση «{2}» ούτε άλλη"};
inline constexpr Message noVideo{"no video is named '{1}'", "κανένα βίντεο δεν λέγεται «{1}»"};
inline constexpr Message noMolecule{"no molecule is named '{1}'", "κανένα μόριο δεν λέγεται «{1}»"};
inline constexpr Message noDataFile{"the data folder has no file '{1}'",
                                    "ο φάκελος δεδομένων δεν έχει αρχείο «{1}»"};
inline constexpr Message indexIsTooLarge{"the content does not fit into the file",
                                         "το περιεχόμενο δεν χωρά στο αρχείο"};
inline constexpr Message pictureIsUnused{"no page uses this picture",
                                         "καμία σελίδα δεν χρησιμοποιεί αυτή την εικόνα"};
inline constexpr Message moleculeIsUnused{"no page uses this molecule",
                                          "καμία σελίδα δεν χρησιμοποιεί αυτό το μόριο"};
inline constexpr Message videoIsUnused{"no page uses this video",
                                       "καμία σελίδα δεν χρησιμοποιεί αυτό το βίντεο"};
inline constexpr Message otherWordIsUsed{"'{1}' is not the word that is used here", "εδώ δεν γράφουμε «{1}»"};
inline constexpr Message notATerminologyLine{"not a line 'wrong | right'",
                                             "δεν είναι γραμμή «λάθος | σωστό»"};
inline constexpr Message topicWithoutQuiz{"the topic has no quiz", "το θέμα δεν έχει ερωτήσεις"};
inline constexpr Message topicWithoutClass{"the topic names no school year ('class')",
                                           "το θέμα δεν λέει σε ποια τάξη ανήκει («τάξη»)"};
inline constexpr Message topicWithoutMedia{"the topic has neither picture nor molecule, film or tool",
                                           "το θέμα δεν έχει ούτε εικόνα ούτε μόριο, βίντεο ή εργαλείο"};
inline constexpr Message topicIsTooLong{"the topic has {1} words; at most {2} are read",
                                        "το θέμα έχει {1} λέξεις· διαβάζονται ως {2}"};
inline constexpr Message unknownClass{"no style is called '{1}'", "κανένα στιλ δεν λέγεται «{1}»"};

}  // namespace contentc::say
