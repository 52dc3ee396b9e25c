// Files that are no pictures, and some that were made to harm: skipped without a word.
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <QBuffer>
#include <QImage>

#include "gui/AssetFixture.h"

namespace lumo {
namespace {

QByteArray goodPicture() {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImage picture(64, 64, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    EXPECT_TRUE(picture.save(&buffer, "png"));
    return bytes;
}

/// A correct PNG header that claims 100,000 by 100,000 pixels of four bytes, and 16 bytes of them.
QByteArray hugeClaim() {
    return QByteArray::fromHex(
        "89504e470d0a1a0a0000000d49484452000186a0000186a00806000000a8520bc8"
        "0000000b49444154789c63604005000010000139bd8f650000000049454e44ae426082");
}

/// A correct PNG header, and a text whose length is given as 1.7 GiB and of which nothing is there.
QByteArray hugeChunk() { return hugeClaim().left(33) + QByteArray::fromHex("6efe002e74455874"); }

/// The same as the one picture of an icon file.
QByteArray iconOf(const QByteArray& picture) {
    return QByteArray::fromHex("00000100010001010000010020002900000016000000") + picture;
}

QByteArray damaged() {
    QByteArray bytes = goodPicture();
    bytes[bytes.size() / 2] = static_cast<char>(~bytes[bytes.size() / 2]);
    return bytes;
}

struct BadFile {
    const char* name;
    QByteArray (*bytes)();
};

const BadFile kBadFiles[] = {
    {"Empty", [] { return QByteArray(); }},
    {"Text", [] { return QByteArray("This is not a picture.\n"); }},
    {"SignatureAlone", [] { return goodPicture().left(8); }},
    {"HeaderAlone", [] { return goodPicture().left(33); }},
    {"CutShort", [] { return goodPicture().chopped(30); }},
    {"Damaged", damaged},
    {"HugeClaim", hugeClaim},
    {"HugeChunk", hugeChunk},
    {"HugeChunkInIcon", [] { return iconOf(hugeChunk()); }},
    {"BrokenDrawing", [] { return QByteArray("<svg xmlns='http://www.w3.org/2000/svg'><path d="); }},
    {"OtherPictureCutShort", [] { return QByteArray("\xFF\xD8\xFF\xE0\x00\x10JFIF", 10); }},
};

std::vector<QString>* messages = nullptr;  // what Qt says, while a test listens

class BadPictures : public test::AssetFixture {
protected:
    AssetManager onDisk{bundle};  // looks for files itself

    BadPictures() {
        messages = &m_messages;
        m_before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& text) { messages->push_back(text); });
        testing::internal::CaptureStderr();
    }
    ~BadPictures() override {
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
        qInstallMessageHandler(m_before);
        EXPECT_THAT(m_messages, testing::IsEmpty());
    }

    /// The bad one comes first in the search, and the good one is found all the same.
    void expectSkipped() {
        paint(resources + "/skins/a.png", Qt::red);
        const QImage found = onDisk.image("a.png");
        ASSERT_FALSE(found.isNull());
        EXPECT_EQ(found.pixelColor(0, 0), QColor(Qt::red));
    }

private:
    std::vector<QString> m_messages;
    QtMessageHandler m_before = nullptr;
};

class BadFiles : public BadPictures, public testing::WithParamInterface<BadFile> {};

TEST_P(BadFiles, AreSkippedInSilence) {
    write(resources + "/a.png", GetParam().bytes());
    expectSkipped();
}

INSTANTIATE_TEST_SUITE_P(Of, BadFiles, testing::ValuesIn(kBadFiles),
                         [](const auto& each) { return std::string(each.param.name); });

#ifdef Q_OS_LINUX
/// In KiB, from the system's own description of this process.
long memory(const char* which) {
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly)) return 0;
    const QByteArray text = status.readAll();
    const QByteArray line = text.mid(text.indexOf(which));
    return line.left(line.indexOf('\n')).simplified().split(' ').value(1).toLong();
}

void forgetPeak() {
    QFile references("/proc/self/clear_refs");
    ASSERT_TRUE(references.open(QIODevice::WriteOnly));
    ASSERT_EQ(references.write("5"), 1);
}

TEST_P(BadFiles, TakeNoMoreMemoryThanAPictureMay) {
    write(resources + "/a.png", GetParam().bytes());
    forgetPeak();
    const long before = memory("VmRSS:");
    EXPECT_TRUE(onDisk.image("a.png").isNull());
    EXPECT_GT(before, 0);
    EXPECT_LT(memory("VmHWM:") - before, 128 * 1024);
}
#endif

TEST_F(BadPictures, AFolderOfThatNameIsSkipped) {
    ASSERT_TRUE(QDir().mkpath(resources + "/a.png"));
    expectSkipped();
}

TEST_F(BadPictures, ALinkToNowhereIsSkipped) {
    ASSERT_TRUE(QFile::link(resources + "/nowhere", resources + "/a.png"));
    expectSkipped();
}

TEST_F(BadPictures, APipeIsNotWaitedFor) {
    ASSERT_EQ(::mkfifo((resources + "/a.png").toUtf8().constData(), 0600), 0);
    expectSkipped();
}

TEST_F(BadPictures, AnUnreadableFileFromTheBundleIsSkipped) {
    bundle.paths["a.png"] = (resources + "/missing.png").toStdString();
    expectSkipped();
}

// 67 MiB, a little more than a picture may take; Qt itself would take twice as much.
TEST_F(BadPictures, APictureLargerThanAnyOfOursIsSkipped) {
    paint(resources + "/a.png", Qt::green, {4200, 4200});
    expectSkipped();
}

TEST_F(BadPictures, APictureAsLargeAsTheLargestOfOursIsTaken) {
    paint(resources + "/a.png", Qt::green, {1300, 1024});
    EXPECT_FALSE(onDisk.image("a.png").isNull());
}

}  // namespace
}  // namespace lumo
