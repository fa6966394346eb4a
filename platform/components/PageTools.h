#pragma once

#include <string>
#include <vector>

namespace platform {

/// How a page begins when the program has a browser show it.
struct PageStart {
    /// How far it is scrolled down, in the page's own units.
    double scrolled = 0;
    /// Words that are marked in it until the user presses Escape; the first of them is scrolled to. Code page
    /// 1253.
    std::vector<std::string> marked;

    friend bool operator==(const PageStart&, const PageStart&) = default;
};

/// What the program and its user do with the page on show.
class PageOnShow {
  public:
    virtual ~PageOnShow() = default;

    /// How far the page is scrolled down, in its own units.
    virtual double scrolled() const = 0;

    /// Moves the pointer to the link that the user has just followed by a key; nowhere after a click.
    virtual void pointAtLink() = 0;

    /// Opens the strip in which the user looks for a text in the page, or closes it.
    virtual void openFind() = 0;
    virtual void closeFind() = 0;

    /// The size of the page's text, in percent.
    virtual int textSize() const = 0;
    virtual void setTextSize(int percent) = 0;
};

/// What a browser component does for its program besides its operations; a Component is converted to it by
/// `dynamic_cast`.
class PageTools : public PageOnShow {
  public:
    /// Sets how the page begins that the program asks for next.
    virtual void beginNextPage(PageStart start) = 0;
};

}  // namespace platform
