#pragma once

#include "tools/contentc/source/CommonMessages.h"

/// What is said about the bodies of pages.
namespace contentc::say {

// Within lines
inline constexpr Message formulaIsNotClosed{
    "'$' is not closed on its line; a dollar sign is written '\\$'",
    "το «$» δεν κλείνει στη γραμμή του· το σύμβολο του δολαρίου γράφεται «\\$»"};
inline constexpr Message termIsNotClosed{"'[[' is not closed on its line",
                                         "το «[[» δεν κλείνει στη γραμμή του"};
inline constexpr Message termWithoutWords{"a glossary link without words",
                                          "όρος του γλωσσαρίου χωρίς λέξεις"};
inline constexpr Message addressIsNotClosed{"the address of the link is not closed on its line",
                                            "η διεύθυνση του συνδέσμου δεν κλείνει στη γραμμή της"};
inline constexpr Message linkWithoutAddress{"a link without an address", "σύνδεσμος χωρίς διεύθυνση"};
inline constexpr Message strayAsterisks{"'{1}' has no partner, so it is shown as it is",
                                        "το «{1}» δεν έχει ταίρι και θα φανεί έτσι όπως είναι"};
inline constexpr Message tableWithoutRule{
    "a table needs a line '|---|---|' below its first line",
    "ένας πίνακας χρειάζεται κάτω από την πρώτη γραμμή του τη γραμμή «|---|---|»"};
inline constexpr Message pictureInText{"a picture stands on a line of its own",
                                       "μια εικόνα μπαίνει σε δική της γραμμή"};
inline constexpr Message unknownTermName{"no glossary term is called '{1}'",
                                         "κανένας όρος του γλωσσαρίου δεν λέγεται «{1}»"};
inline constexpr Message addTheTerm{
    "write it in the folder 'glossary': a line '# {1}', and its text below",
    "γράψε τον στον φάκελο «glossary»: μια γραμμή «# {1}» και από κάτω το κείμενό του"};
inline constexpr Message unknownPageName{"no page is called '{1}'", "καμία σελίδα δεν λέγεται «{1}»"};
inline constexpr Message unknownPageNumber{"no page has the number {1}",
                                           "καμία σελίδα δεν έχει τον αριθμό {1}"};
inline constexpr Message ambiguousPageName{"several pages are called '{1}'; write the number",
                                           "πολλές σελίδες λέγονται «{1}»· γράψε τον αριθμό της"};

// Formulas
inline constexpr Message emptyFormula{"formula '{1}' is empty", "ο τύπος «{1}» είναι κενός"};
inline constexpr Message nothingToLower{"formula '{1}': nothing to lower behind '_'",
                                        "τύπος «{1}»: μετά το «_» δεν υπάρχει τίποτε να κατεβεί"};
inline constexpr Message nothingToLift{"formula '{1}': nothing to lift behind '^'",
                                       "τύπος «{1}»: μετά το «^» δεν υπάρχει τίποτε να ανεβεί"};
inline constexpr Message braceIsNotClosed{"formula '{1}': '{' is not closed",
                                          "τύπος «{1}»: το «{» δεν κλείνει"};
inline constexpr Message bracesAreTooDeep{"formula '{1}': braces inside of too many others",
                                          "τύπος «{1}»: άγκιστρα μέσα σε πάρα πολλά άλλα"};
inline constexpr Message strayBrace{"formula '{1}': a brace without '^' or '_' before it",
                                    "τύπος «{1}»: άγκιστρο χωρίς «^» ή «_» πριν από αυτό"};

// Lines of their own
inline constexpr Message headingOfTitle{
    "headings begin with '##'; the page's title stands in its head",
    "οι επικεφαλίδες αρχίζουν με «##»· ο τίτλος της σελίδας είναι στην αρχή του αρχείου"};
inline constexpr Message equationIsNotClosed{"the equation is not closed by a line '$$'",
                                             "η εξίσωση δεν κλείνει με μια γραμμή «$$»"};
inline constexpr Message closesNoBox{"':::' closes no box", "το «:::» δεν κλείνει κανένα πλαίσιο"};
inline constexpr Message boxIsNotClosed{"the box is not closed by a line ':::'",
                                        "το πλαίσιο δεν κλείνει με μια γραμμή «:::»"};
inline constexpr Message nestedTooDeep{"boxes, lists, quotations or emphasis inside of too many others",
                                       "πλαίσια, λίστες, παραθέσεις ή έμφαση μέσα σε πάρα πολλά άλλα"};
inline constexpr Message unknownBox{"no box is called '{1}'", "κανένα πλαίσιο δεν λέγεται «{1}»"};
inline constexpr Message questionWithoutAnswer{
    "the question needs a line '---' and the answer below it",
    "η ερώτηση χρειάζεται μια γραμμή «---» και από κάτω την απάντηση"};
inline constexpr Message notACardRow{"not a row 'name: value' of the card",
                                     "δεν είναι γραμμή «όνομα: τιμή» της καρτέλας"};
inline constexpr Message unknownPictureSetting{
    "'{{1}}' is neither the width of the picture nor '{πλάι}' or '{side}'",
    "το «{{1}}» δεν είναι ούτε το πλάτος της εικόνας ούτε «{πλάι}»"};
inline constexpr Message pictureWithoutWords{
    "the picture needs words for those who do not see it: '![words](file)'",
    "η εικόνα χρειάζεται λόγια για όποιον δεν τη βλέπει: «![λόγια](αρχείο)»"};
inline constexpr Message unknownPicture{"no picture is named '{1}'", "καμία εικόνα δεν λέγεται «{1}»"};
inline constexpr Message listOutsideSections{"a list of pages works only on a page of a section",
                                             "ένας κατάλογος σελίδων λειτουργεί μόνο σε σελίδα ενότητας"};
inline constexpr Message linkOutsideSections{"a link to a page works only on a page of a section",
                                             "ένας σύνδεσμος προς σελίδα λειτουργεί μόνο σε σελίδα ενότητας"};
inline constexpr Message captionIsNotClosed{"the caption of the film has no '\"' at its end",
                                            "η λεζάντα του βίντεο δεν κλείνει με «\"»"};

}  // namespace contentc::say
