#include "download/TokenFileFetch.h"

#include <gtest/gtest.h>

#include "download/WebPeer.h"
#include "support/FakeProgram.h"

namespace cvlang {
namespace {

constexpr char kFile[] = "WebMail-default-tokens-fr.map";
const FetchSelection kFrench{u"WebMail", u"default", u"French"};

std::string Answer(std::string_view body) {
    return std::string("HTTP/1.0 200 OK\r\n\r\n").append(body);
}

/// Fetches what is selected from a server that answers with that body; returns the request line.
std::string Fetch(FakeProgram& fake, const std::string& body,
                  const FetchSelection& selection = kFrench) {
    WebPeer peer(Answer(body));
    FetchDefaultTranslation(fake.program, {u"127.0.0.1", peer.Port()}, selection);
    const std::string request = peer.Received();
    return request.substr(0, request.find('\r'));
}

TEST(TokenFileFetch, ReplacesTheLocalFileByTheServersAfterAsking) {
    FakeProgram fake;
    PutFile(kFile, "mine");
    const std::string body = Utf16Bytes(u"[CV_TXT-A]\t\u00E9\u3042\r\n");
    EXPECT_EQ(Fetch(fake, body),
              "GET /Tools/WebMail/bases/default/Languages/WebMail-default-tokens-fr.map HTTP/1.0");
    EXPECT_EQ(FileBytes(kFile), body);
    ASSERT_EQ(fake.messages.shown.size(), 1U);
    const UserMessage& question = fake.messages.shown[0];
    EXPECT_EQ(question.title, u"Update Language File: WebMail[default]");
    EXPECT_EQ(
        question.text,
        u"You have requested to download the default/current French translation table for "
        u"WebMail[default] from the Corvane web site.\r\n\r\nThis will overwrite any previous "
        u"modifications you have made to the this language.\r\n\r\nDo you wish to continue?");
    EXPECT_TRUE(question.buttons == MessageButtons::YesNo &&
                question.icon == MessageIcon::Question);
}

TEST(TokenFileFetch, EveryAnswerButAnErrorPageReplacesTheFile) {
    FakeProgram fake;
    for (const char* body : {"", "<!doctype html public", "x<!DOCTYPE HTML PUBLIC"}) {
        PutFile(kFile, "mine");
        Fetch(fake, body);
        EXPECT_EQ(FileBytes(kFile), body);
    }
    PutFile(kFile, "mine");
    fake.messages.shown.clear();
    Fetch(fake, "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD\">");
    EXPECT_EQ(FileBytes(kFile), "mine");
    ASSERT_EQ(fake.messages.shown.size(), 3U);
    EXPECT_EQ(fake.messages.shown[1].text, u"Could not access File for  from the Server. File=" +
                                               TextFromPath(fake.folder / kFile));
    EXPECT_EQ(fake.messages.shown[2].text, u"Unable to fetch language token");
    EXPECT_EQ(fake.messages.shown[2].title, u"CVLangTranslator");
}

TEST(TokenFileFetch, WhatMustNotBeOverwrittenIsNot) {
    FakeProgram fake;
    const DistributionServer nobody{u"127.0.0.1", 1};
    PutFile(kFile, "mine");
    fake.messages.answers = {MessageAnswer::No};
    FetchDefaultTranslation(fake.program, nobody, kFrench);
    EXPECT_EQ(FileBytes(kFile), "mine");
    SetReadOnly(kFile, true);
    FetchDefaultTranslation(fake.program, nobody, kFrench);
    EXPECT_EQ(FileBytes(kFile), "mine");
    SetReadOnly(kFile, false);
    fake.registry.numbers[u"Language Authoring"] = 1;
    FetchDefaultTranslation(fake.program, nobody, kFrench);
    EXPECT_EQ(FileBytes(kFile), "mine");
    std::filesystem::remove(kFile);
    Fetch(fake, "fetched");
    EXPECT_EQ(FileBytes(kFile), "fetched");
}

TEST(TokenFileFetch, AnUnknownLanguageIsWarnedOfAndTheSwitchWritesUtf16) {
    FakeProgram fake;
    WebPeer peer(Answer(std::string("a\0b\0", 4)));
    EXPECT_TRUE(DownloadTokenFile(fake.program, {u"127.0.0.1", peer.Port()}, u"t.map", u"/", true));
    EXPECT_EQ(FileBytes("t.map"), Utf16Bytes(u"ab"));
    Fetch(fake, "fetched", {u"WebMail", u"default", u"Klingon"});
    EXPECT_EQ(FileBytes("WebMail-default-tokens-.map"), "fetched");
    ASSERT_EQ(fake.messages.shown.size(), 2U);
    const UserMessage& warning = fake.messages.shown[1];
    EXPECT_TRUE(warning.text == u"Language Symbol not found" && warning.title == u"Warning" &&
                warning.icon == MessageIcon::Exclamation);
}

}  // namespace
}  // namespace cvlang
