#include "ReportLog.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <system_error>

namespace lumo::vk {
namespace {

std::vector<std::string> linesOf(const std::filesystem::path& path) {
    std::ifstream file(path);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) lines.push_back(line);
    return lines;
}

TEST(ReportLog, WritesOneJsonLinePerTransfer) {
    const auto path = std::filesystem::path(testing::TempDir()) / "report-log-test.jsonl";
    ReportLog log(path.string());
    log.write(Direction::set, true, Bytes{0x06, 0x82, 0xFF});
    log.write(Direction::get, false, Bytes{});
    const auto lines = linesOf(path);  // each line is flushed at once
    ASSERT_EQ(lines.size(), 2U);
    const auto first = nlohmann::json::parse(lines[0]);
    EXPECT_EQ(first["dir"], "set");
    EXPECT_EQ(first["ok"], true);
    EXPECT_EQ(first["len"], 3);
    EXPECT_EQ(first["hex"], "06 82 ff");
    EXPECT_TRUE(first["us"].is_number_integer());
    const auto second = nlohmann::json::parse(lines[1]);
    EXPECT_EQ(second["dir"], "get");
    EXPECT_EQ(second["ok"], false);
    EXPECT_EQ(second["len"], 0);
    EXPECT_EQ(second["hex"], "");
    EXPECT_LE(first["us"], second["us"]);
    std::filesystem::remove(path);
}

TEST(ReportLog, AFileThatCannotBeMadeIsAnError) {
    EXPECT_THROW(ReportLog("/nonexistent/folder/log"), std::system_error);
}

TEST(ReportLog, WithoutAFileItKeepsNothing) { ReportLog().write(Direction::set, true, Bytes{1}); }

}  // namespace
}  // namespace lumo::vk
