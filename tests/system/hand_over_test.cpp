#include "system/files.h"
#include "system/hand_over.h"

namespace Hesperin {

namespace {

struct HandOverTest : Files {
    QString Take() const { return TakeHandedOver(folder.path()).value_or("none"); }
};

TEST_F(HandOverTest, GivesTheLastPathOnceAndMakesItAbsolute) {
    EXPECT_EQ(Take(), "none");
    EXPECT_TRUE(HandOver(folder.path(), Path("first.xdb")));
    EXPECT_TRUE(HandOver(folder.path(), QDir::current().relativeFilePath(Path("Дракон %1 &.xdb"))));
    EXPECT_TRUE(IsHandedOver(folder.path()));
    EXPECT_EQ(Take(), Path("Дракон %1 &.xdb"));
    EXPECT_EQ(Take(), "none");
    EXPECT_EQ(Names(), QStringList());
    EXPECT_FALSE(HandOver(folder.path(), "two\nlines"));
    EXPECT_FALSE(HandOver(Path("missing"), "a.xdb"));
}

TEST_F(HandOverTest, ADamagedFileIsIgnoredAndRemoved) {
    const QByteArray path = Path("a.xdb").toUtf8();
    const QByteArray damaged[] = {"",
                                  "\n",
                                  path,
                                  "relative.xdb\n",
                                  path + "\n" + path + "\n",
                                  path + "\xFF\n",
                                  path + '\0' + "\n",
                                  QByteArray(1 << 17, '/') + "\n"};
    for (const QByteArray& content : damaged) {
        SCOPED_TRACE(content.left(100).toStdString());
        Write("talmir.open", content);
        EXPECT_EQ(Take(), "none");
        EXPECT_EQ(Names(), QStringList());
    }
    Write("talmir.open/inside", "a folder in its place");
    EXPECT_EQ(Take(), "none");
    EXPECT_FALSE(HandOver(folder.path(), "a.xdb"));
}

} // namespace

} // namespace Hesperin
