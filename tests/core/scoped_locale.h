#pragma once

#include <clocale>
#include <string>

namespace ov::test
{

/// Sets the C locale until the scope ends.
class ScopedLocale
{
  public:
    explicit ScopedLocale(const char* name)
        : m_before(std::setlocale(LC_ALL, nullptr)), m_set(std::setlocale(LC_ALL, name) != nullptr)
    {
    }
    ~ScopedLocale() { std::setlocale(LC_ALL, m_before.c_str()); }
    ScopedLocale(const ScopedLocale&) = delete;
    ScopedLocale& operator=(const ScopedLocale&) = delete;

    /// False if the system does not support the locale.
    bool IsSet() const { return m_set; }

  private:
    std::string m_before;
    bool m_set;
};

} // namespace ov::test
