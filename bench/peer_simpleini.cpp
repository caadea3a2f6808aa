// SimpleIni with case-sensitive names, as in this program. It stores the comment lines above a variable
// as one text with LF line ends and writes LF. Otherwise it reads the same content, below a
// group line.

#include "bench/contenders.h"
#include "bench/measure.h"

// Bytes are not converted, so no conversion library is needed. All its code is compiled here, with the
// same optimisation as this program.
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
