#include "backends/settingsfile/ValueMerge.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace quillet {

namespace {

QVariant record(const QString& name, int rate) {
    return QVariantMap{{"name", name}, {"rate", rate}};
}

QVariant list(const QStringList& names) {
    QVariantList values;
    for (const QString& name : names) {
        values.append(name);
    }
    return values;
}

rc::Gen<QVariantList> anyList() {
    return rc::gen::exec([] {
        QVariantList values;
        for (const int each : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 5))) {
            values.append(each);
        }
        return values;
    });
}

} // namespace

TEST(ValueMergeTest, WhatOnlyOneWriterChangedIsTakenFromIt) {
    EXPECT_EQ(mergedValue("base", "ours", "base"), QVariant("ours"));
    EXPECT_EQ(mergedValue("base", "base", "theirs"), QVariant("theirs"));
    EXPECT_EQ(mergedValue("base", "ours", "theirs"), QVariant("ours"));
}

TEST(ValueMergeTest, BothAdditionsStayTheirsFirst) {
    EXPECT_EQ(mergedValue(list({"All"}), list({"All", "A"}), list({"All", "B"})),
              list({"All", "B", "A"}));
}

TEST(ValueMergeTest, AnAdditionAndARemovalBothHappen) {
    EXPECT_EQ(mergedValue(list({"All", "A"}), list({"All"}), list({"All", "A", "B"})),
              list({"All", "B"}));
    EXPECT_EQ(
        mergedValue(list({"All", "A", "B"}), list({"All", "A", "B", "C"}), list({"All", "B"})),
        list({"All", "B", "C"}));
}

TEST(ValueMergeTest, ARenamedElementIsFoundWhereTheOtherWriterMovedIt) {
    EXPECT_EQ(mergedValue(list({"All", "A", "B"}), list({"All", "A", "New"}), list({"All", "B"})),
              list({"All", "New"}));
}

TEST(ValueMergeTest, ARenamedElementThatTheOtherWriterRemovedStays) {
    EXPECT_EQ(mergedValue(list({"All", "A"}), list({"All", "New"}), list({"All"})),
              list({"All", "New"}));
}

TEST(ValueMergeTest, RecordsInTheirPlacesAreMergedMemberByMember) {
    const QVariant base = QVariantList{record("Work", 90), record("Home", 10)};
    const QVariant ours = QVariantList{record("Work", 95), record("Home", 10)};
    const QVariant theirs = QVariantList{record("Office", 90), record("Home", 20)};
    EXPECT_EQ(mergedValue(base, ours, theirs),
              QVariant(QVariantList{record("Office", 95), record("Home", 20)}));
}

TEST(ValueMergeTest, AMemberThatOneWriterRemovedOrAddedIsSo) {
    const QVariant base = QVariantMap{{"a", 1}, {"b", 2}};
    const QVariant ours = QVariantMap{{"b", 2}, {"c", 3}};
    const QVariant theirs = QVariantMap{{"a", 1}, {"b", 4}};
    EXPECT_EQ(mergedValue(base, ours, theirs), QVariant(QVariantMap{{"b", 4}, {"c", 3}}));
}

TEST(ValueMergeTest, NoElementThatAWriterAddedIsLost) {
    EXPECT_TRUE(rc::check("additions in a merged list", [] {
        const QVariantList base = *anyList();
        const QVariantList ours = *anyList();
        const QVariantList theirs = *anyList();
        const QVariantList merged = mergedValue(base, ours, theirs).toList();
        // In lists of one length both may have changed the same element.
        if (ours.size() != base.size() || theirs.size() != base.size()) {
            for (const QVariant& each : ours + theirs) {
                RC_ASSERT(base.contains(each) || merged.contains(each));
            }
        }
        RC_ASSERT(mergedValue(base, base, theirs).toList() == theirs);
        RC_ASSERT(mergedValue(base, ours, base).toList() == ours);
    }));
}

} // namespace quillet
