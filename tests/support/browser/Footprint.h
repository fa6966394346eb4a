#pragma once

/// This process and those that it has started, as the host tells.
struct Footprint {
    int processes = 0;
    /// Memory that they do not share with others, in megabytes.
    int megabytes = 0;
};

Footprint footprintNow();
