// GLib's GKeyFile, with comments kept. It stores every comment line as an entry of its own and
// needs a group line; otherwise it reads the same content.

#include "bench/contenders.h"
#include "bench/measure.h"

#include <glib.h>

namespace ov::bench
{
namespace
{

class GlibDocument final : public Document
{
  public:
    explicit GlibDocument(const std::filesystem::path& path)
    {
        Require(g_key_file_load_from_file(m_file.get(), path.c_str(), G_KEY_FILE_KEEP_COMMENTS, nullptr) != 0,
                "GLib cannot read the file");
    }

    std::size_t Count() const override
    {
        gsize count = 0;
        g_strfreev(g_key_file_get_keys(m_file.get(), "bench", &count, nullptr));
        return count;
    }

    std::size_t Write() const override
    {
        gsize size = 0;
        g_free(g_key_file_to_data(m_file.get(), &size, nullptr));
        return size;
    }

  private:
    const std::unique_ptr<GKeyFile, decltype(&g_key_file_free)> m_file{g_key_file_new(), &g_key_file_free};
};

} // namespace

std::unique_ptr<Document> ReadWithGlib(const std::filesystem::path& path)
{
    return std::make_unique<GlibDocument>(path);
}

} // namespace ov::bench
