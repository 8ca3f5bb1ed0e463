#include "foundry/reading/scratch_script.h"

#include "foundry/reading/script_reader.h"
#include "foundry/reading/skin_page.h"

namespace lv {

namespace {

class TextFile : public RandomAccessFile {
  public:
    explicit TextFile(TextView bytes) : bytes_(bytes) {}
    [[nodiscard]] std::uint64_t Size() const override { return bytes_.size(); }
    Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
        return offset >= bytes_.size() ? std::string()
                                       : std::string(bytes_.substr(static_cast<std::size_t>(offset), count));
    }

  private:
    TextView bytes_;
};

}  // namespace

ScriptDocument ReadScratch(Run& run, const ScriptDialect& dialect, TextView path, TextView bytes) {
    ScriptDocument document = MakeScriptDocument(dialect);
    document.CurrentScriptPath = path;
    document.CurrentScriptDirectory = path.substr(0, path.rfind('\\') + 1);
    PrepareSkinPage(run, document);
    document.ScriptLoading = true;
    TextFile file(bytes);
    ScriptView nobody;
    const std::uint64_t firstLineWithoutAlias = ReadAliases(file, document);
    ReadLines(file, document, nobody, firstLineWithoutAlias, [&] { Sex_Cbo_Click(run, document); });
    document.ScriptLoading = false;
    return document;
}

}  // namespace lv
