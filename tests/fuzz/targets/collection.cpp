// The catalogue: what is read is numbers, and they stay themselves when they are written and read again.
#include "base/text.h"
#include "collection/collection_file.h"
#include "fuzz/targets/targets.h"
#include "fuzz/texts.h"
#include "support/temporary_folder.h"

#include <memory>

namespace coinlet::test {
namespace {

using Numbers = std::vector<std::string>;

std::string FaultOfNumbers(const Numbers& numbers) {
    for (const std::string& number : numbers) {
        if (TrimBlanks(number).empty()) return "a blank number";
        if (number.find_first_of("\r\n") != std::string::npos) return "a number of several lines";
    }
    return "";
}

/// As they come back: without blanks at their ends. A quote inside of one would end it.
Numbers WithoutQuotes(Numbers numbers) {
    std::erase_if(numbers, [](const std::string& number) { return number.find('"') != std::string::npos; });
    for (std::string& number : numbers)
        number = TrimBlanks(number);
    return numbers;
}

class Catalogue {
public:
    Outcome Read(File file) {
        const fs::path path = folder_ / "Collection.col";
        fs::remove(path);
        if (const Collection none = ReadCollection(path); !none.readable || !none.numbers.empty())
            return {true, "one that isn't there is none to start with"};
        folder_.Write("Collection.col", AsText(file));
        const Collection collection = ReadCollection(path);
        if (!collection.readable) return {true, "it can't be read"};
        if (collection.numbers != ParseCollection(FromCodePage(AsText(file))))
            return {true, "another text than the file has"};
        std::string wrong = FaultOfNumbers(collection.numbers);
        if (wrong.empty()) wrong = FaultOfCopy(WithoutQuotes(collection.numbers));
        return {!collection.numbers.empty(), wrong};
    }

private:
    std::string FaultOfCopy(const Numbers& numbers) const {
        const fs::path path = folder_ / "Copy.col";
        fs::remove(path);
        WriteCollection(path, numbers);
        return ReadCollection(path).numbers == numbers ? "" : "written and read again, they are others";
    }

    TemporaryFolder folder_;
};

}  // namespace

Reader CollectionReader() {
    constexpr std::size_t slow = 100;  // What is written is flushed to the disk, which takes its time.
    return {
        "catalogue",
        {TextFile("\"1234-A\"\r\n\"5678-B\"\r\n"), TextFile("\"a, b\" , c\nd\r\n\r\n\"open\r\n  \"\xE9\"x")},
        [catalogue = std::make_shared<Catalogue>()](File file) { return catalogue->Read(file); },
        slow};
}

}  // namespace coinlet::test
