#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tools/drive/script/Json.h"

namespace drive {

/// One command while it is carried out: its words, and the answer that it leaves.
class Act : public std::enable_shared_from_this<Act> {
  public:
    /// `words` begins with the command's name.
    explicit Act(std::vector<std::string> words) : m_words(std::move(words)) {}

    const std::string& name() const { return m_words.front(); }
    /// Number of arguments.
    std::size_t count() const { return m_words.size() - 1; }
    /// An argument, counted from 0.
    const std::string& word(std::size_t index) const { return m_words[index + 1]; }
    /// The arguments from an index on.
    std::span<const std::string> wordsFrom(std::size_t index) const {
        return std::span(m_words).subspan(index + 1);
    }

    /// Adds a field to the answer.
    void set(const char* key, Json value) { m_fields[key] = std::move(value); }
    /// Answers that it could not be done; the first reason counts.
    void fail(std::string error);
    /// Has the answer completed at the idle moment, just before it is given.
    void whenIdle(std::function<void(Act&)> complete) { m_completions.push_back(std::move(complete)); }

    /// The answer counts as not ready while one of these lives.
    class Hold {
      public:
        explicit Hold(Act& act) : m_act(act.shared_from_this()) { ++m_act->m_holds; }
        ~Hold() { --m_act->m_holds; }
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;

      private:
        std::shared_ptr<Act> m_act;
    };
    bool held() const { return m_holds > 0; }

    /// Completes the answer.
    Json answer();

  private:
    std::vector<std::string> m_words;
    Json m_fields = Json::object();
    std::string m_error;
    std::vector<std::function<void(Act&)>> m_completions;
    int m_holds = 0;
};

/// The answer to a line that is no command.
Json refusal(std::string_view name, std::string_view error);

}  // namespace drive
