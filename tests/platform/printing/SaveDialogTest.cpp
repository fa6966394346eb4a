#include "platform/printing/SaveDialog.h"

#include <gtest/gtest.h>

namespace windows_test {

namespace {

TEST(SaveDialogTest, MakesAFileNameOfATitle) {
    struct Case {
        QString title;
        QString name;
    };
    for (const Case& each :
         std::initializer_list<Case>{{"Τα οξέα", "Τα οξέα.pdf"},
                                     {"Οξέα/βάσεις: τι \"είναι\"?", "Οξέα βάσεις τι είναι.pdf"},
                                     {" ..\\..\\x ", "x.pdf"},
                                     {"", "Kalyxo.pdf"},
                                     {QString(300, u'α'), QString(80, u'α') + ".pdf"}}) {
        EXPECT_EQ(platform::fileNameFor(each.title), each.name) << each.title.toStdString();
    }
}

}  // namespace

}  // namespace windows_test
