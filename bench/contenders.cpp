#include "bench/contenders.h"

#include "bench/file_port.h"
#include "bench/measure.h"
#include "config/core/config_reader.h"
#include "config/core/config_writer.h"
#include "config/core/setting_store.h"

namespace ov::bench
{
namespace
{

class StoreDocument final : public Document
{
  public:
    explicit StoreDocument(const std::filesystem::path& path)
    {
        SystemFilePort files;
        const ReadResult result = ReadConfigFile(m_store, kCurrentTable, path.u16string(), files);
        Require(result.outcome == ReadOutcome::Read, "cannot read the settings");
    }

    std::size_t Count() const override { return m_store.Count(kCurrentTable); }

    std::size_t Write() const override
    {
        std::string bytes;
        Require(WriteConfig(m_store, u"#", bytes).ok, "cannot write the settings");
        return bytes.size();
    }

  private:
    SettingStore m_store;
};

std::unique_ptr<Document> ReadWithStore(const std::filesystem::path& path)
{
    return std::make_unique<StoreDocument>(path);
}

std::vector<Contender> FindContenders()
{
    std::vector<Contender> found = {{"Preferences", false, true, true, true, &ReadWithStore}};
#ifdef OV_BENCH_GLIB
    found.push_back({"GLib", true, true, true, false, &ReadWithGlib});
#endif
#ifdef OV_BENCH_SIMPLEINI
    found.push_back({"SimpleIni", true, true, true, true, &ReadWithSimpleIni});
#endif
#ifdef OV_BENCH_INIH
    found.push_back({"inih", true, false, false, true, &ReadWithInih});
#endif
    return found;
}

} // namespace

const std::vector<Contender>& Contenders()
{
    static const std::vector<Contender> contenders = FindContenders();
    return contenders;
}

std::string MissingContenders()
{
    std::string missing;
    for (const char* name : {"GLib", "SimpleIni", "inih"}) {
        bool found = false;
        for (const Contender& contender : Contenders())
            found = found || contender.name == name;
        if (!found)
            missing.append(missing.empty() ? "" : ", ").append(name);
    }
    return missing;
}

} // namespace ov::bench
