#pragma once

#include "formats/DataSet.h"

namespace controls::dataanalyser {

/// The elements as a data set with the number 0. The id of a row is its atomic number.
formats::DataSet elementSet();

}  // namespace controls::dataanalyser
