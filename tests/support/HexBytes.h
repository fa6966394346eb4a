#pragma once

#include <cstdlib>
#include <sstream>
#include <string>

/// Bytes from pairs of hexadecimal digits; text in single quotes stands for itself.
inline std::string hexBytes(const std::string& text) {
    std::string result;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        if (word.front() == '\'') {
            result += word.substr(1, word.size() - 2);
        } else {
            result += static_cast<char>(std::strtol(word.c_str(), nullptr, 16));
        }
    }
    return result;
}
