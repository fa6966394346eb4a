#include "controls/dataanalyser/look/GraphParts.h"

extern "C" __attribute__((visibility("default"))) const controls::dataanalyser::GraphParts*
KalyxoGraphParts() {
    return controls::dataanalyser::linkedGraphParts();
}
