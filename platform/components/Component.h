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

/// The type of an argument or result in a component's description.
enum class TypeCode { none, i2, i4, boolean, text, variant, booleanRef, dispatch };

/// One operation of a component, as a type library would describe it.
struct OperationInfo {
    std::int32_t dispid;
    InvokeKind kind;
    std::string_view name;
    std::span<const TypeCode> arguments;
};

/// One event of a component.
struct EventInfo {
    std::int32_t dispid;
    std::string_view name;
    std::span<const TypeCode> arguments;
};

/// Draws a page that is printed.
using PagePainter = std::function<void(QPainter& painter, const QRect& page, int dotsPerInch)>;

/// What a component can ask of its host. The site outlives the component.
class ComponentSite {
  public:
    virtual ~ComponentSite() = default;
    /// Raises an event; its handlers run before this returns.
    virtual void raiseEvent(std::int32_t dispid, std::span<Variant> arguments) = 0;
    /// Gives a child widget of the component a window handle and a receiver of sent messages.
    virtual HWND registerWindow(QWidget& widget, std::string className, MessageProc proc) = 0;
    virtual LRESULT sendMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) = 0;
    /// The machine's drives and files.
    virtual const FileSystem& files() const = 0;
    /// Prints a document of one page; its name is code page 1253. `paint` draws the page in device pixels
    /// from the corner of its printable area, `dotsPerInch` to the inch. The user may be asked for a printer
    /// first. False when nothing was printed, for instance because the host has no printer.
    virtual bool print(std::string_view, const PagePainter&) { return false; }
};

/// A component that runs in the program's process. It owns its widget, whose parent is the host's.
class Component {
  public:
    virtual ~Component() = default;
    virtual QWidget& widget() = 0;
    virtual std::span<const OperationInfo> operations() const = 0;
    virtual std::span<const EventInfo> events() const = 0;
    /// Carries out an operation. Nothing when there is no such operation, or the number or types of the
    /// arguments differ.
    virtual std::optional<Variant> invoke(std::int32_t dispid, InvokeKind kind,
                                          std::span<const Variant> arguments) = 0;
    /// True while the component does something that it will finish by itself, such as loading a page.
    virtual bool busy() const { return false; }

    // Blocks of the component's memory. Operations name a block by a number, its location; 0 is no block.

    /// The bytes at a location, valid until the next call of an operation or of `keepBlock`; empty when there
    /// is no such block.
    virtual std::span<const std::byte> block(std::int32_t) const { return {}; }
    /// Copies a block of the host for the following operations and returns its location, 0 if the component
    /// takes no blocks. At least the blocks of the last two calls are kept.
    virtual std::int32_t keepBlock(std::span<const std::byte>) { return 0; }
};

/// Makes a component; the function that a module exports.
using ComponentFactory = std::unique_ptr<Component> (*)(ComponentSite& site, QWidget* parent);

}  // namespace platform
