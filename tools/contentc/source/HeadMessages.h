#pragma once

#include "tools/contentc/source/CommonMessages.h"

/// What is said about the heads of pages and about terms of the glossary.
namespace contentc::say {

inline constexpr Message headIsNotClosed{"no line '---' between header and body",
                                         "λείπει η γραμμή «---» ανάμεσα στην αρχή και στο κείμενο"};
inline constexpr Message notAHeadLine{"not a header line 'name: value'", "δεν είναι γραμμή «όνομα: τιμή»"};
inline constexpr Message fieldStandsTwice{"header field '{1}' stands twice", "το «{1}» υπάρχει δύο φορές"};
inline constexpr Message unknownField{"unknown header field '{1}'", "άγνωστο όνομα «{1}»"};
inline constexpr Message fieldIsMissing{"header field '{1}' is missing", "λείπει το «{1}»"};
inline constexpr Message writeALine{"write a line '{1}'", "γράψε μια γραμμή «{1}»"};
inline constexpr Message fieldIsEmpty{"header field '{1}' is empty", "το «{1}» είναι κενό"};
inline constexpr Message fieldIsTooLong{"{1} has {2} bytes, at most {3} fit",
                                        "το «{1}» έχει {2} χαρακτήρες, χωρούν ως {3}"};
inline constexpr Message unknownKind{"unknown kind '{1}'", "άγνωστο είδος «{1}»: γράψε αρχή, θέμα ή λήμμα"};
inline constexpr Message onlyEntriesHaveTopics{"only an entry has a topic", "μόνο ένα λήμμα έχει θέμα"};
inline constexpr Message topicWithoutSummary{"a topic needs a summary, for the list of topics",
                                             "ένα θέμα χρειάζεται περίληψη, για τον κατάλογο των θεμάτων"};
inline constexpr Message unknownSchoolYear{
    "no school year: '{1}'; write Β΄ or Γ΄ Γυμνασίου, Α΄, Β΄ or Γ΄ Λυκείου",
    "δεν είναι σχολική τάξη: «{1}»· γράψε Β΄ ή Γ΄ Γυμνασίου, Α΄, Β΄ ή Γ΄ Λυκείου"};
inline constexpr Message notANumber{"not a number: '{1}'", "δεν είναι αριθμός: «{1}»"};
inline constexpr Message unknownTopic{"section '{1}' has no topic {2}", "η ενότητα «{1}» δεν έχει θέμα {2}"};
inline constexpr Message nameFileSo{"name it {1}", "ονόμασέ το {1}"};
inline constexpr Message notAPageNumber{"file name is not a page number: '{1}'",
                                        "το όνομα του αρχείου δεν αρχίζει με αριθμό σελίδας: «{1}»"};
inline constexpr Message otherStartPage{"the start page of this section is {1}, not {2}",
                                        "η αρχική σελίδα αυτής της ενότητας είναι η {1}, όχι η {2}"};
inline constexpr Message mustBeStartPage{"page {1} must be of kind 'start'",
                                         "η σελίδα {1} πρέπει να είναι του είδους «αρχή»"};
inline constexpr Message entryOfNoList{"entry {1} belongs to no title list",
                                       "το λήμμα {1} δεν ανήκει σε κανέναν κατάλογο τίτλων"};

// Terms
inline constexpr Message termBegins{"a term begins with a line '# NAME | FORM | FORM'",
                                    "ένας όρος αρχίζει με μια γραμμή «# ΟΝΟΜΑ | ΤΥΠΟΣ | ΤΥΠΟΣ»"};
inline constexpr Message termWithoutName{"a term without a name", "όρος χωρίς όνομα"};
inline constexpr Message termIsTooLong{"term is longer than {1} bytes",
                                       "το όνομα του όρου έχει πάνω από {1} χαρακτήρες"};
inline constexpr Message lineIsTooLong{"line is longer than {1} bytes",
                                       "η γραμμή έχει πάνω από {1} χαρακτήρες"};
inline constexpr Message definitionIsTooShort{"definition is missing or too short to be shown",
                                              "ο ορισμός λείπει ή είναι πολύ μικρός για να φανεί"};
inline constexpr Message termIsCalledSoToo{"another term is called '{1}' too, in {2}:{3}",
                                           "και άλλος όρος λέγεται «{1}», στο {2}:{3}"};

}  // namespace contentc::say
