#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/components/Variant.h"
#include "platform/qt/WindowTable.h"

class QPainter;
class QRect;
class QWidget;

namespace platform {

class FileSystem;

/// Type of an argument or result in a control's description.
enum class TypeCode { none, i2, i4, boolean, text, variant, booleanRef, dispatch };

/// One operation of a control, as a type library would tell it.
struct OperationInfo {
    std::int32_t dispid;
    InvokeKind kind;
    std::string_view name;
    std::span<const TypeCode> arguments;
};

/// One event of a control.
struct EventInfo {
    std::int32_t dispid;
    std::string_view name;
    std::span<const TypeCode> arguments;
};

/// Draws a page that is printed.
using PagePainter = std::function<void(QPainter& painter, const QRect& page, int dotsPerInch)>;

/// What a control can ask of its host. It outlives the control.
class ComponentSite {
  public:
    virtual ~ComponentSite() = default;
    /// Raises an event; its handlers run before this returns.
    virtual void raiseEvent(std::int32_t dispid, std::span<Variant> arguments) = 0;
    /// Gives a child widget of the control a window handle and a receiver of sent messages.
    virtual HWND registerWindow(QWidget& widget, std::string className, MessageProc proc) = 0;
    virtual LRESULT sendMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) = 0;
    /// The machine's drives and files.
    virtual const FileSystem& files() const = 0;
    /// Prints a document (its name in code page 1253) of one page, which the painter draws: in device pixels
    /// from the printable corner, `dotsPerInch` to the inch. The user may be asked for a printer first. False
    /// when nothing was printed, as by a host without printers.
    virtual bool print(std::string_view, const PagePainter&) { return false; }
};

/// A control that runs in the program's process. It owns its widget, whose parent is the host's.
class Component {
  public:
    virtual ~Component() = default;
    virtual QWidget& widget() = 0;
    virtual std::span<const OperationInfo> operations() const = 0;
    virtual std::span<const EventInfo> events() const = 0;
    /// Carries out an operation; nothing when there is no such operation or an argument has another
    /// type or the number of arguments differs.
    virtual std::optional<Variant> invoke(std::int32_t dispid, InvokeKind kind,
                                          std::span<const Variant> arguments) = 0;
    /// True while the control does something that it will finish by itself, such as loading a page.
    virtual bool busy() const { return false; }

    /// @name Blocks of the control's memory, which operations carry as a location: the number of a block, 0
    /// for none.
    /// @{
    /// The bytes at a location, valid until the next call of an operation or of `keepBlock`; empty when no
    /// block is there.
    virtual std::span<const std::byte> block(std::int32_t) const { return {}; }
    /// Takes a copy of a host's block for the operations that follow, and gives its location. The blocks of
    /// the last two calls at least are kept. 0 when the control takes none.
    virtual std::int32_t keepBlock(std::span<const std::byte>) { return 0; }
    /// @}
};

using ControlFactory = std::unique_ptr<Component> (*)(ComponentSite& site, QWidget* parent);

}  // namespace platform
