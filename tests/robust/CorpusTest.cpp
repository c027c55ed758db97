#include "Targets.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace kavor::fuzz {

namespace {

// A broken promise aborts the test program and names itself.
TEST(Corpus, NoDocumentOfTheFuzzersBreaksAPromise) {
    for (const auto& target : targets()) {
        int documents = 0;
        for (const auto& entry :
             std::filesystem::directory_iterator(std::filesystem::path(KAVOR_CORPUS) / target.name)) {
            SCOPED_TRACE(entry.path().string());
            const auto document = contentOf(entry.path());
            documents += target.run(document) ? 1 : 0;
            // Cut short, it must be refused or still make sense.
            for (std::size_t length = 0; length < document.size(); length += 1 + document.size() / 64)
                target.run(std::string_view(document).substr(0, length));
        }
        EXPECT_GT(documents, 0) << target.name << ": no document of the corpus is one";
    }
}

} // namespace

} // namespace kavor::fuzz
