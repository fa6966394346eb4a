#include "controls/dataanalyser/graph/LinkedGraphParts.h"

extern "C" __attribute__((visibility("default"))) const controls::dataanalyser::GraphParts*
KalyxoGraphParts() {
    return controls::dataanalyser::linkedGraphParts();
}
