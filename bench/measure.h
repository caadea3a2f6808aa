#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ov::bench
{

/// Throws std::runtime_error if `holds` is false. Measuring something that failed would be
/// meaningless.
void Require(bool holds, std::string_view what);

/// Functions whose times are compared. They take turns, so that other load on the machine affects all of
/// them equally; the best turn of each counts.
class Race
{
  public:
    /// The index of a function in its race.
    using Entry = std::size_t;

    /// `after` is called after each turn of `work`, outside the measured time.
    Entry Add(std::function<void()> work, std::function<void()> after = {});

    /// Runs that many turns of every function.
    void Run(int turns);

    /// The best turn of a function, in milliseconds.
    double Best(Entry entry) const { return m_runners[entry].best; }

  private:
    struct Runner {
        std::function<void()> work;
        std::function<void()> after;
        double best;
    };

    std::vector<Runner> m_runners;
};

/// A number with that many decimal places.
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

/// The targets, and whether they were reached.
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
