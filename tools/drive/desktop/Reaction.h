#pragma once

#include <functional>

class QWidget;

namespace drive {

class Request;

/// Delays the answer to a command that has just sent input. `receiver` is called when the input has arrived;
/// if the widget that it returns belongs to a web page, the answer waits until that page has reacted.
void awaitReaction(Request& request, std::function<QWidget*()> receiver);

}  // namespace drive
