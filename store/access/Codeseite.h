#pragma once

#include <string>
#include <string_view>

struct UConverter;

namespace accessdatei {

/// Texts of one code page as UTF-8. Not for two threads at a time.
class Codeseite
{
public:
    /// Code page 1252 where `nummer` is unknown.
    explicit Codeseite(int nummer);
    ~Codeseite();
    Codeseite(const Codeseite &) = delete;
    Codeseite &operator=(const Codeseite &) = delete;

    /// Bytes without a meaning become U+FFFD.
    void wandeln(std::string_view bytes, std::string &utf8) const;
    int nummer() const { return nummer_; }

private:
    UConverter *wandler_ = nullptr;
    int nummer_;
};

} // namespace accessdatei
