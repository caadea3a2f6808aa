#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ov::bench
{

/// Throws std::runtime_error unless it holds: a measurement of something that failed is worth
/// nothing.
void Require(bool holds, std::string_view what);

/// Works whose times are compared. They take turns, so that whatever else the machine does hits all
/// of them alike, and of each the best turn counts.
class Race
{
  public:
    /// The place of a work among its race's.
    using Entry = std::size_t;

    /// `after` is called after each turn of the work and is not timed.
    Entry Add(std::function<void()> work, std::function<void()> after = {});

    /// Gives every work so many more turns.
    void Run(int turns);

    /// The best turn of a work, in milliseconds.
    double Best(Entry entry) const { return m_runners[entry].best; }

  private:
    struct Runner {
        std::function<void()> work;
        std::function<void()> after;
        double best;
    };

    std::vector<Runner> m_runners;
};

/// A number with so many decimal places.
std::string Decimal(double number, int places);

/// A table with aligned columns, in Markdown.
class Table
{
  public:
    Table(std::string caption, std::vector<std::string> titles);

    void AddRow(std::vector<std::string> cells);
    void Print() const;

  private:
    std::string m_caption;
    std::vector<std::vector<std::string>> m_rows;
};

/// What is to be reached, and whether it was.
class Targets
{
  public:
    Targets() : m_table("Targets", {"target", "measured", "met"}) {}

    void AtMost(std::string what, double measured, double limit, const std::string& unit, int places = 2);
    void AtLeast(std::string what, double measured, double limit, const std::string& unit, int places = 0);
    void Print() const { m_table.Print(); }

  private:
    Table m_table;
};

} // namespace ov::bench
