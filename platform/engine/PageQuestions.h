#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/base/Geometry.h"

class QWebEnginePage;

/// Questions about a page that the engine answers later: each runs the event loop until the answer is
/// there, five seconds at most, and gives an empty answer after that. Rectangles are in the widget that
/// shows the page.
namespace platform {

/// Whether one of them is not answered yet.
bool anyQuestionOpen();

/// The text of a page as it can be read, without marks.
QString textOf(QWebEnginePage& page);
/// The source of a page as it stands now.
QString htmlOf(QWebEnginePage& page);

/// Scrolls the first link with this text (code page 1253, blanks at its ends apart) into view and says
/// where it is.
std::optional<CRect> findLinkOf(QWebEnginePage& page, std::string_view linkText);

/// Where the link with the keyboard focus is, the first line of it when it is broken.
std::optional<CRect> focusedLinkOf(QWebEnginePage& page);

/// The frame of an embedded file: the number that the page's script gave it (see EmbedScript), its place in
/// the view, and its size in the page's own units, which is the same however the page is zoomed.
struct EmbeddedFrame {
    int number = 0;
    CRect place;
    CSize size;
};

/// The frames of embedded files, in the order of the page.
std::vector<EmbeddedFrame> embeddedFramesOf(QWebEnginePage& page);
/// The same without waiting; nothing is called when the page goes before.
void askEmbeddedFramesOf(QWebEnginePage& page,
                         const std::function<void(const std::vector<EmbeddedFrame>&)>& answer);

/// The picture that the viewer of an embedded file gives of itself, as PNG. It is asked until it has one;
/// empty when it says that it will have none, or has none within five seconds.
QByteArray pictureOfEmbedded(QWebEnginePage& page, int number);

}  // namespace platform
