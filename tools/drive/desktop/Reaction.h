#pragma once

#include <functional>

class QWidget;

namespace drive {

class Act;

/// Input goes on its way in events; behind them, has the answer wait until the web page that receives them,
/// if one does, has reacted. `receiver` is asked then.
void awaitReaction(Act& act, std::function<QWidget*()> receiver);

}  // namespace drive
