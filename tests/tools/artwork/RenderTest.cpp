#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

namespace {

/// A folder with one manifest, palette and drawing, and the renderer run on it.
class Render : public ::testing::Test {
  protected:
    void put(const QString& name, const QByteArray& text) {
        QFile file(folder_.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    void SetUp() override {
        put("palette.json", R"({"base": {"ink": "#102030"}, "hot": {"ink": "#ff0000"}})");
        put("manifest.json", entry(R"("size": [4, 2], "format": "rgb")"));
        put("dot.svg", R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 1 1">
                             <rect width="1" height="1" fill="var(--ink)"/></svg>)svg");
        put("a.svg", drawing(R"(<use xlink:href="dot.svg" x="0" y="0" width="2" height="2"/>
                                <use xlink:href="dot.svg" x="2" y="0" width="2" height="2"
                                     data-colours="hot"/>)"));
    }

    static QByteArray entry(const QByteArray& rest) {
        return R"({"palette": "palette.json", "pictures": [{"output": "out/a.png", "source": "a.svg", )" +
               rest + "}]}";
    }

    static QByteArray drawing(const QByteArray& body) {
        return R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" viewBox="0 0 4 2">)" +
               body + "</svg>";
    }

    int run() {
        QProcess process;
        process.start(RENDER_ARTWORK, {folder_.filePath("manifest.json"), folder_.path()});
        process.waitForFinished();
        errors_ = QString::fromUtf8(process.readAllStandardError());
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    QTemporaryDir folder_;
    QString errors_;
};

TEST_F(Render, DrawsIncludedFilesInTheColoursAsked) {
    ASSERT_EQ(run(), 0) << errors_.toStdString();
    const QImage image(folder_.filePath("out/a.png"));
    EXPECT_EQ(image.size(), QSize(4, 2));
    EXPECT_EQ(image.pixelColor(1, 1), QColor(0x10, 0x20, 0x30));
    EXPECT_EQ(image.pixelColor(2, 1), QColor(255, 0, 0));
}

TEST_F(Render, TellsFileAndReasonOfAnError) {
    struct Case {
        const char* file;
        QByteArray text;
        int status;
        const char* message;
    };
    const Case cases[] = {
        {"manifest.json", "{", 2, "not a JSON object"},
        {"manifest.json", R"({"palette": "palette.json"})", 2, "no list \"pictures\""},
        {"manifest.json", R"({"palette": "palette.json", "pictures": [{}]})", 2, "an entry lacks \"output\""},
        {"palette.json", R"({"base": {"ink": 5}})", 2, "base.ink is not a text"},
        {"manifest.json",
         R"({"palette": "palette.json", "pictures":
             [{"output": "dot.svg/a.png", "source": "a.svg", "size": [4, 2], "format": "rgb"}]})",
         1, "its folder cannot be made"},
        {"manifest.json", entry(R"("size": [0, 2], "format": "rgb")"), 2, "\"size\" must be"},
        {"manifest.json", entry(R"("size": [4, 2], "format": "gif")"), 2, "\"format\" must be"},
        {"manifest.json", entry(R"("size": [4, 2], "format": "rgb", "colours": "cold")"), 2, "no colour set"},
        {"a.svg", "<svg", 1, "a.svg: line 1"},
        {"a.svg", "<a/>", 1, "not an SVG file"},
        {"dot.svg", "<svg/>", 1, "dot.svg: no usable viewBox"},
        {"a.svg", drawing(R"(<use xlink:href="none.svg"/>)"), 1, "none.svg: "},
        {"a.svg", drawing(R"(<use xlink:href="a.svg"/>)"), 1, "inside one another"},
        {"a.svg", drawing(R"svg(<rect fill="var(--gold)"/>)svg"), 1, "a.svg: no colour gold"},
        {"a.svg", drawing(R"(<text font-family="No Such Font">x</text>)"), 1, "font not installed"},
    };
    for (const Case& wrong : cases) {
        SetUp();
        put(wrong.file, wrong.text);
        EXPECT_EQ(run(), wrong.status) << wrong.message;
        EXPECT_TRUE(errors_.contains(wrong.message)) << errors_.toStdString();
    }
}

}  // namespace
