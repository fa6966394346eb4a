#pragma once

#include "tools/contentc/source/CommonMessages.h"

/// What is said about writing the data folder.
namespace contentc::say {

inline constexpr Message diskIsFull{"the disk is full; the former data folder stays as it was",
                                    "ο δίσκος γέμισε· ο προηγούμενος φάκελος δεδομένων μένει όπως ήταν"};
inline constexpr Message mayNotBeWritten{"you have no right to write here",
                                         "δεν έχεις δικαίωμα να γράψεις εδώ"};
inline constexpr Message cannotBeWritten{"cannot be written: {1}", "δεν γράφεται: {1}"};
inline constexpr Message isNoDataFolder{"is in use by something other than a data folder",
                                        "περιέχει κάτι άλλο και όχι φάκελο δεδομένων"};

}  // namespace contentc::say
