#pragma once

#include "src/components/HostedComponents.h"

namespace kalyxo {

/// How the components come up: checked against the program's own copies where it brings some along, and
/// created in the view. Each step tells the user what is wrong.
class ComponentStart {
  public:
    ComponentStart(platform::CWnd& view, HostedComponents& components)
        : m_view(view), m_components(components) {}

    /// False when the program cannot go on.
    bool Run() { return areUpToDate() && create(); }
    /// Warns of components that report a version older than the program needs.
    static void CheckComponentVersions();

  private:
    static bool areUpToDate();
    bool create();

    platform::CWnd& m_view;
    HostedComponents& m_components;
};

}  // namespace kalyxo
