#pragma once

#include "tools/contentc/source/Message.h"

/// What is said about more than one subject, and what is suggested.
namespace contentc::say {

inline constexpr Message warning{"warning: ", "προσοχή: "};
inline constexpr Message separator{"; ", "· "};
inline constexpr Message didYouMean{"did you mean '{1}'?", "μήπως εννοείς «{1}»;"};
inline constexpr Message writeInstead{"write '{1}' instead", "γράψε «{1}»"};
inline constexpr Message putFileInto{"put the file into the folder '{1}'",
                                     "βάλε το αρχείο στον φάκελο «{1}»"};
inline constexpr Message isMissing{"missing", "λείπει"};
inline constexpr Message cannotBeRead{"cannot be read", "δεν διαβάζεται"};

}  // namespace contentc::say
