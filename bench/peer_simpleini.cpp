// SimpleIni with names that differ by case, as this program's do. It keeps the comment lines above
// a variable as one text with LF line ends and writes LF; what it reads is else the same, under a
// group line.

#include "bench/contenders.h"
#include "bench/measure.h"

// Bytes stay bytes: no conversion library is needed. All of it is compiled here, as optimised as
// this program.
#define SI_NO_CONVERSION
#define SI_IMPLEMENTATION
#include <SimpleIni.h>

namespace ov::bench
{
namespace
{

class SimpleIniDocument final : public Document
{
  public:
    explicit SimpleIniDocument(const std::filesystem::path& path)
    {
        Require(m_file.LoadFile(path.c_str()) == SI_OK, "SimpleIni cannot read the file");
    }

    std::size_t Count() const override { return static_cast<std::size_t>(m_file.GetSectionSize("bench")); }

    std::size_t Write() const override
    {
        std::string bytes;
        Require(m_file.Save(bytes) == SI_OK, "SimpleIni cannot write the file");
        return bytes.size();
    }

  private:
    CSimpleIniCaseA m_file{true};
};

} // namespace

std::unique_ptr<Document> ReadWithSimpleIni(const std::filesystem::path& path)
{
    return std::make_unique<SimpleIniDocument>(path);
}

} // namespace ov::bench
