// Runs a fuzz target over the files of its corpus, each as a test of its own.
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
extern "C" __attribute__((weak)) int LLVMFuzzerInitialize(int* argc, char*** argv);

namespace {

class Replay : public testing::Test
{
public:
    explicit Replay(std::filesystem::path file) : m_file(std::move(file)) {}

    void TestBody() override
    {
        std::ifstream stream(m_file, std::ios::binary);
        ASSERT_TRUE(stream) << m_file;
        const std::vector<char> bytes{std::istreambuf_iterator<char>(stream), {}};
        // A property that does not hold ends the program, with this test as the one that runs.
        EXPECT_EQ(LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                         bytes.size()),
                  0);
    }

private:
    std::filesystem::path m_file;
};

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s CORPUS\n", argv[0]);
        return 2;
    }
    if (LLVMFuzzerInitialize)
        LLVMFuzzerInitialize(&argc, &argv);
    std::set<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(argv[1]))
        files.insert(entry.path());
    if (files.empty()) {
        std::fprintf(stderr, "%s: no inputs\n", argv[1]);
        return 1;
    }
    for (const auto& file : files) {
        testing::RegisterTest("Corpus", file.filename().c_str(), nullptr, nullptr, __FILE__,
                              __LINE__, [=]() -> Replay* { return new Replay(file); });
    }
    return RUN_ALL_TESTS();
}
