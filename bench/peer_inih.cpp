// inih, which passes names and values to a callback; they are stored in a map. It discards comments and
// cannot write. It reads the same file as the other libraries.

#include "bench/contenders.h"
#include "bench/measure.h"

#include <ini.h>
#include <map>

namespace ov::bench
{
namespace
{

using Values = std::map<std::string, std::string>;

class InihDocument final : public Document
{
  public:
    explicit InihDocument(const std::filesystem::path& path)
    {
        Require(ini_parse(path.c_str(), &Keep, &m_values) == 0, "inih cannot read the file");
    }

    std::size_t Count() const override { return m_values.size(); }
    std::size_t Write() const override { return 0; }

  private:
    static int Keep(void* values, const char*, const char* name, const char* value)
    {
        (*static_cast<Values*>(values))[name] = value;
        return 1;
    }

    Values m_values;
};

} // namespace

std::unique_ptr<Document> ReadWithInih(const std::filesystem::path& path)
{
    return std::make_unique<InihDocument>(path);
}

} // namespace ov::bench
