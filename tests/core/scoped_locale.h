#pragma once

#include <clocale>
#include <string>

namespace ov::test
{

/// Sets the C locale for a scope.
class ScopedLocale
{
  public:
    explicit ScopedLocale(const char* name)
        : before_(std::setlocale(LC_ALL, nullptr)), set_(std::setlocale(LC_ALL, name) != nullptr)
    {
    }
    ~ScopedLocale() { std::setlocale(LC_ALL, before_.c_str()); }
    ScopedLocale(const ScopedLocale&) = delete;
    ScopedLocale& operator=(const ScopedLocale&) = delete;

    /// False when the system does not know the locale.
    bool IsSet() const { return set_; }

  private:
    std::string before_;
    bool set_;
};

} // namespace ov::test
