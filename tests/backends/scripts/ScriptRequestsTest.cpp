#include "backends/scripts/ScriptRequests.h"

#include "export/MailScript.h"
#include "results/OpenCalendarEvent.h"
#include "support/CpuTimer.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using Requests = std::vector<ScriptRequest>;

Requests requestsOf(const QString& source) {
    const auto requests = requestsOfScript(source);
    EXPECT_TRUE(requests) << (requests ? "" : qPrintable(requests.error()));
    return requests.value_or(Requests());
}

QString errorOf(const QString& source) {
    const auto requests = requestsOfScript(source);
    EXPECT_FALSE(requests);
    return requests ? QString() : requests.error();
}

/// A message whose content is this literal, quotes and escapes included.
QString messageOf(const QString& literal) {
    return "tell application \"Mail\"\nset m to make new outgoing message\ntell m\n"
           "set visible to true\nset content to " +
           literal + "\nend tell\nend tell";
}

QString contentOf(const QString& literal) {
    const Requests requests = requestsOf(messageOf(literal));
    return requests.size() == 1 ? std::get<MessageRequest>(requests.front()).content
                                : QStringLiteral("(not one request)");
}

} // namespace

TEST(ScriptRequestsTest, ThePlainMailScriptAsksForAMessage) {
    const Requests requests = requestsOf(plainMailScript("First line\n  second", "March 2024"));
    EXPECT_EQ(requests, Requests{(MessageRequest{.subject = "March 2024",
                                                 .content = "First line\n  second",
                                                 .fontName = {},
                                                 .fontSizePoints = {},
                                                 .color = {}})});
}

TEST(ScriptRequestsTest, TheStyledMailScriptAsksForFontSizeAndColour) {
    const Requests requests =
        requestsOf(styledMailScript("Text", {.red = 0, .green = 0.5, .blue = 1}, "Subject"));
    EXPECT_EQ(
        requests,
        Requests{(MessageRequest{.subject = "Subject",
                                 .content = "Text",
                                 .fontName = "Monaco",
                                 .fontSizePoints = 10,
                                 .color = ColorFractions{.red = 0, .green = 0.5, .blue = 1}})});
}

TEST(ScriptRequestsTest, TheCalendarScriptAsksForAnEvent) {
    EXPECT_EQ(requestsOf(showEventScript("folder:Work%20time", "a b%20c'$(x)`;\n@test")),
              Requests{(EventRequest{"folder:Work%20time", "a b%20c'$(x)`;\n@test"})});
}

TEST(ScriptRequestsTest, QuotesReachTheMessageAsQuotes) {
    const QString body = QString::fromUtf8("\"Done\", he said: 100% of {1,2}\n\t– “ü” 🎉 end tell");
    const Requests requests = requestsOf(plainMailScript(removeQuotesFromString(body), "S"));
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(std::get<MessageRequest>(requests.front()).content, body);
}

TEST(ScriptRequestsTest, ABackslashEscapesQuotesAndBackslashesOnly) {
    EXPECT_EQ(contentOf(R"("a\"b")"), QStringLiteral("a\"b"));
    EXPECT_EQ(contentOf(R"("a\\b")"), QStringLiteral("a\\b"));
    EXPECT_EQ(contentOf(R"("\\\"")"), QStringLiteral("\\\""));
    EXPECT_EQ(contentOf(R"("C:\notes\temp\report")"), QStringLiteral("C:\\notes\\temp\\report"));
    EXPECT_EQ(contentOf(R"("\ \1 \u0041")"), QStringLiteral("\\ \\1 \\u0041"));
    EXPECT_EQ(contentOf("\"a\\\nb\""), QStringLiteral("a\\\nb"));
    for (char16_t character = 1; character < 128; ++character) {
        if (character != u'"' && character != u'\\') {
            const QString text = QStringLiteral("\\") + QChar(character);
            EXPECT_EQ(contentOf('"' + text + '"'), text) << int(character);
        }
    }
}

TEST(ScriptRequestsTest, ATextThatEndsInABackslashBreaksItsScript) {
    EXPECT_FALSE(requestsOfScript(plainMailScript(removeQuotesFromString("path\\"), "S")));
    EXPECT_FALSE(requestsOfScript(plainMailScript(removeQuotesFromString("a\\\"b"), "S")));
}

TEST(ScriptRequestsTest, AnIdentifierWithAQuoteBreaksItsScript) {
    EXPECT_FALSE(requestsOfScript(showEventScript("work", "a\"b")));
    EXPECT_FALSE(requestsOfScript(showEventScript("a\"b", "x")));
    // Not even one that would be a script.
    const QString hostile = "x\")\nend tell\nend tell\ntell application \"Mail\"\nactivate\n"
                            "end tell\ntell application \"Calendar\"\ntell v\nset y to (\"";
    EXPECT_FALSE(requestsOfScript(showEventScript("work", hostile)));
}

TEST(ScriptRequestsTest, AScriptCutShortAnywhereGivesNoResult) {
    const QString mail = styledMailScript("A \\\"quoted\\\" text", {.red = 0.25}, "Subject");
    const QString event = showEventScript("work", "first@test");
    for (const QString& script : {mail, event}) {
        for (qsizetype length = 0; length < script.size(); ++length) {
            const auto requests = requestsOfScript(script.left(length));
            EXPECT_TRUE(!requests || requests->empty()) << qPrintable(script.left(length));
            // Nothing but blanks is a script, one that asks for nothing.
            EXPECT_EQ(requests.has_value(), script.left(length).trimmed().isEmpty());
        }
        EXPECT_EQ(requestsOf(script).size(), 1U);
    }
}

TEST(ScriptRequestsTest, AScriptWithOneCharacterMissingNeverAsksForSomethingElse) {
    const QString script = showEventScript("work", "first@test");
    for (qsizetype position = 0; position < script.size(); ++position) {
        QString changed = script;
        changed.remove(position, 1);
        const auto requests = requestsOfScript(changed);
        for (const ScriptRequest& request : requests.value_or(Requests())) {
            EXPECT_TRUE(std::holds_alternative<EventRequest>(request));
        }
    }
}

TEST(ScriptRequestsTest, HugeTextsTakeNoTime) {
    QString body;
    while (body.size() < 20'000'000) {
        body += QStringLiteral("A line with a \\\"quoted\\\" word and a C:\\path\n");
    }
    const test::CpuTimer timer;
    const Requests requests = requestsOf(plainMailScript(body, "S"));
    EXPECT_LT(timer.milliseconds(), 3000);
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(std::get<MessageRequest>(requests.front()).content,
              body.replace(QStringLiteral("\\\""), QStringLiteral("\"")));
}

TEST(ScriptRequestsTest, OnlyTheCalendarShowsEvents) {
    const QString found = "tell application \"Calendar\"\n"
                          "set c to (first calendar whose uid is \"work\")\n"
                          "tell c\nset e to (first event whose uid is \"one\")\nend tell\n"
                          "end tell\n";
    EXPECT_FALSE(requestsOfScript(found + "tell application \"Mail\"\nshow e\nend tell"));
    EXPECT_FALSE(requestsOfScript(found + "show e"));
    EXPECT_EQ(requestsOf(found + "tell application \"Calendar\"\nshow e\nend tell"),
              Requests{(EventRequest{"work", "one"})});
}

TEST(ScriptRequestsTest, DeepNestingIsRefused) {
    const auto nested = [](int depth) {
        return QStringLiteral("tell application \"Mail\"\n").repeated(depth) +
               QStringLiteral("end tell\n").repeated(depth);
    };
    EXPECT_TRUE(requestsOfScript(nested(32)));
    EXPECT_FALSE(requestsOfScript(nested(33)));
    const QString many = QStringLiteral("tell application \"Mail\"\n").repeated(100'000);
    EXPECT_TRUE(errorOf(many).contains("nested too deeply"));
    const QString parentheses = messageOf(QString(1'000'000, u'(') + "\"x\"");
    EXPECT_TRUE(errorOf(parentheses).contains(QString::fromUtf8("“)” expected")));
}

TEST(ScriptRequestsTest, ErrorsNameTheirLine) {
    EXPECT_EQ(errorOf("activate"), QStringLiteral("line 1: nothing to activate"));
    EXPECT_EQ(errorOf("tell application \"Mail\"\nset x to\n"),
              QStringLiteral("line 2: a text expected"));
    EXPECT_EQ(errorOf("tell application \"Other\"\nend tell"),
              QString::fromUtf8("line 1: there is no application “Other”"));
    EXPECT_EQ(errorOf("\n\ntell application \"Mail\"\ntell m\nend tell\nend tell"),
              QString::fromUtf8("line 4: “m” is not set"));
    EXPECT_EQ(errorOf("tell application \"Mail\n\n"),
              QStringLiteral("line 1: a text that does not end"));
    EXPECT_EQ(errorOf("end tell"), QStringLiteral("line 1: an end without its beginning"));
    EXPECT_EQ(errorOf("tell application \"a\nb\"\n§"),
              QStringLiteral("line 3: an unexpected character, U+00a7"));
}

TEST(ScriptRequestsTest, WhatTheProgramsDoNotKnowGivesNoResult) {
    const QString inMail = "tell application \"Mail\"\nset m to make new outgoing message\n%1\n"
                           "end tell";
    const QString inMessage = "tell m\n%1\nend tell";
    const QString inCalendar = "tell application \"Calendar\"\n%1\nend tell";
    for (const char* statement :
         {"show m", "switch view to day view", "set x to (first calendar whose uid is \"a\")",
          "set subject to \"x\"", "set subject of m to \"x\"", "delete m", "tell x\nend tell",
          "set a of b to make new outgoing message"}) {
        EXPECT_FALSE(requestsOfScript(inMail.arg(statement))) << statement;
    }
    for (const char* statement : {"set subject to 3",
                                  "set visible to \"yes\"",
                                  "set size of content to 0",
                                  "set size of content to -1",
                                  "set size of content to 1.2.3",
                                  "set size of content to 1e3",
                                  "set size of content to -",
                                  "set color of content to {1,2}",
                                  "set color of content to {1,2,3,4}",
                                  "set color of content to {}",
                                  "set color of content to {1,2,}",
                                  "set color of content to {1,2,3",
                                  "set color of content to (1,2,3)",
                                  "set color of content to {nan,0,0}",
                                  "set color of content to {1.2.3,0,0}",
                                  "set color of content to {-,0,0}",
                                  "set colour of content to {1,2,3}",
                                  "set content of content to \"x\"",
                                  "set content to (\"x\"",
                                  "set content to \"x\")",
                                  "set content to \"x\" \"y\"",
                                  "set x to (first event whose uid is \"a\")"}) {
        EXPECT_FALSE(requestsOfScript(inMail.arg(inMessage.arg(statement)))) << statement;
    }
    for (const char* statement :
         {"switch view to moon view", "set e to (first event whose uid is \"a\")", "show c",
          "set m to make new outgoing message", "set c to (first calendar whose name is \"a\")",
          "set c to (first calendar whose uid is 3)"}) {
        EXPECT_FALSE(requestsOfScript(inCalendar.arg(statement))) << statement;
    }
}

TEST(ScriptRequestsTest, AMessageThatIsNotVisibleIsNotAskedFor) {
    QString script = plainMailScript("Text", "Subject");
    EXPECT_TRUE(requestsOf(script.replace("visible to true", "visible to false")).empty());
}

TEST(ScriptRequestsTest, LinesMayBeIndentedAndEndInAnyWay) {
    const QString script = showEventScript("work", "first@test");
    const Requests expected = requestsOf(script);
    EXPECT_EQ(requestsOf(QString(script).replace("\n", "\r\n")), expected);
    EXPECT_EQ(requestsOf(QString(script).replace("\n", "\n\n \t\n")), expected);
    EXPECT_EQ(requestsOf(QString(script).remove(QString(19, u' '))), expected);
}

TEST(ScriptRequestsTest, SeveralRequestsKeepTheirOrder) {
    const Requests requests =
        requestsOf(showEventScript("work", "a") + "\n" + plainMailScript("Text", "S") + "\n" +
                   showEventScript("home", "b"));
    ASSERT_EQ(requests.size(), 3U);
    EXPECT_EQ(std::get<EventRequest>(requests[0]).eventIdentifier, QStringLiteral("a"));
    EXPECT_EQ(std::get<MessageRequest>(requests[1]).subject, QStringLiteral("S"));
    EXPECT_EQ(std::get<EventRequest>(requests[2]).eventIdentifier, QStringLiteral("b"));
}

} // namespace quillet
