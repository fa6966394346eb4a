#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "tools/drive/script/Json.h"

namespace drive {

/// One command of a script while it is carried out: its arguments, and the answer that it gets.
class Request : public std::enable_shared_from_this<Request> {
  public:
    /// `words` begins with the command's name.
    explicit Request(std::vector<std::string> words) : words_(std::move(words)) {}

    const std::string& name() const { return words_.front(); }
    std::size_t argumentCount() const { return words_.size() - 1; }
    /// An argument, counted from 0.
    const std::string& argument(std::size_t index) const { return words_[index + 1]; }
    /// The arguments from an index on.
    std::span<const std::string> argumentsFrom(std::size_t index) const {
        return std::span(words_).subspan(index + 1);
    }

    /// Adds a field to the answer.
    void set(const char* key, Json value) { fields_[key] = std::move(value); }
    /// Makes the answer say that the command could not be done. The first error is the one that is told.
    void fail(std::string error);
    /// Has `complete` called when the program is idle, just before the answer is given.
    void whenIdle(std::function<void(Request&)> complete) { completions_.push_back(std::move(complete)); }

    /// While one of these exists, the answer is not given.
    class Hold {
      public:
        explicit Hold(Request& request) : request_(request.shared_from_this()) { ++request_->holds_; }
        ~Hold() { --request_->holds_; }
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;

      private:
        std::shared_ptr<Request> request_;
    };
    bool held() const { return holds_ > 0; }

    /// Completes the answer.
    Json answer();

  private:
    std::vector<std::string> words_;
    Json fields_ = Json::object();
    std::string error_;
    std::vector<std::function<void(Request&)>> completions_;
    int holds_ = 0;
};

/// The answer to a line that cannot be carried out.
Json refusal(std::string_view name, std::string_view error);

}  // namespace drive
