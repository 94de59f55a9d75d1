// What reaches the user and the world outside: boxes with their answers, printed pages, opened documents.

#include "player/commands.h"
#include "player/failure.h"
#include "player/lookup.h"
#include "player/script_run.h"
#include "player/values.h"
#include "surface/codecs.h"

#include <algorithm>
#include <ostream>

namespace coinlet::player {

namespace {

// --- Answers ----------------------------------------------------------------------------------------------

struct NamedAnswer {
    std::string_view name;
    Answer answer;
};
constexpr NamedAnswer namedAnswers[] = {
    {"yes", Answer::Yes}, {"no", Answer::No}, {"ok", Answer::Ok}, {"cancel", Answer::Cancel}};

void QueueAnswer(ScriptRun& run, const Arguments& arguments) {
    const std::string name = arguments.Text(0);
    const auto* const answer = std::ranges::find(namedAnswers, name, &NamedAnswer::name);
    if (answer == std::end(namedAnswers)) Fail("expected yes, no, ok or cancel, found " + Quoted(name));
    run.TheWorld().answers.Add(answer->answer);
}

void QueueText(ScriptRun& run, const Arguments& arguments) {
    run.TheWorld().answers.Add(TextAnswer{arguments.Text(0)});
}

void QueueFolder(ScriptRun& run, const Arguments& arguments) {
    const std::string text = arguments.Text(0);
    run.TheWorld().answers.Add(FolderAnswer{text.empty() ? text : run.ThePlaces().Resolve(text).string()});
}

// --- Messages ---------------------------------------------------------------------------------------------

std::string ShowMessage(const Places& places, const ShownMessage& message) {
    return Quoted(places.Shown(message.prompt)) + " titled " + Quoted(places.Shown(message.title));
}

/// "*" stands for any text.
bool Fits(const Places& places, const std::string& expected, const std::string& found) {
    return expected == "*" || places.ShownExpected(expected) == places.Shown(found);
}

void ExpectMessage(ScriptRun& run, const Arguments& arguments) {
    const Places& places = run.ThePlaces();
    const std::string prompt = arguments.Text(0);
    const std::string title = arguments.Count() > 1 ? arguments.Text(1) : "*";
    const std::string expected =
        "expected the message " + Quoted(prompt) + (title == "*" ? "" : " titled " + Quoted(title));
    const ShownMessage* const message = run.TheLife().platform.messages.Take();
    if (!message) Fail(expected + ", found none");
    if (!Fits(places, prompt, message->prompt) || !Fits(places, title, message->title))
        Fail(expected + ", found " + ShowMessage(places, *message));
}

void ExpectNoMessage(ScriptRun& run, const Arguments&) {
    if (const ShownMessage* const message = run.TheLife().platform.messages.Next())
        Fail("expected no message, found " + ShowMessage(run.ThePlaces(), *message));
}

// --- Printed pages, opened documents ----------------------------------------------------------------------

void Pages(ScriptRun& run, const Arguments&) {
    for (const std::string& line : run.TheLife().printer.lines.All())
        run.Out() << line << '\n';
}

/// The oldest entry of a record must be the expected text.
void ExpectOldest(const ScriptRun& run, Record<std::string>& record, const std::string& expected,
                  const std::string& kind) {
    const std::string* const found = record.Take();
    if (!found) Fail("expected the " + kind + " " + Quoted(expected) + ", found none");
    const std::string shown = run.ThePlaces().Shown(*found);
    if (shown != run.ThePlaces().ShownExpected(expected))
        Fail("expected the " + kind + " " + Quoted(expected) + ", found " + Quoted(shown));
}

void ExpectPageLine(ScriptRun& run, const Arguments& arguments) {
    ExpectOldest(run, run.TheLife().printer.lines, arguments.Text(0), "page line");
}

void ExpectDocument(ScriptRun& run, const Arguments& arguments) {
    ExpectOldest(run, run.TheLife().desktop.documents, arguments.Text(0), "document");
}

// --- What other programs hand over ------------------------------------------------------------------------

void Drop(ScriptRun& run, const Arguments& arguments) {
    Form& form = FindForm(run.TheLife(), arguments.Text(0));
    if (!form.TakesDrops()) Fail(arguments.Text(0) + " takes nothing that is dropped");
    Offer offer;
    for (std::size_t i = 1; i < arguments.Count(); ++i)
        offer.files.push_back(run.ThePlaces().Found(arguments.Text(i)));
    form.Form_Drop(offer);
}

/// The bytes of a file as the other program holds them, and what the address `Clipboard` shows of them.
void PutPicture(ScriptRun& run, const Arguments& arguments) {
    auto bytes = ReadFile(run.ThePlaces().Found(arguments.Text(0)));
    if (!bytes) Fail("expected the file " + arguments.Text(0) + ", found none");
    const Image picture = DecodeOfferedPicture(*bytes, run.Codecs()).value_or(Image());
    run.TheWorld().clipboard.Put({.files = {}, .encoded = *std::move(bytes), .image = picture});
}

void PutPath(ScriptRun& run, const Arguments& arguments) {
    run.TheWorld().clipboard.Put(
        {.files = {run.ThePlaces().Found(arguments.Text(0))}, .encoded = {}, .image = {}});
}

constexpr Command commands[] = {
    {"drop", "FORM FILE...", Needs::RunningProgram, Drop},
    {"clipboard", "FILE", Needs::RunningProgram, PutPicture},
    {"clipboard-path", "FILE", Needs::RunningProgram, PutPath},
    {"answer", "yes|no|ok|cancel", Needs::RunningProgram, QueueAnswer},
    {"answer-text", "TEXT", Needs::RunningProgram, QueueText},
    {"answer-folder", "PATH", Needs::RunningProgram, QueueFolder},
    {"expect-message", "PROMPT [TITLE]", Needs::RunningProgram, ExpectMessage},
    {"expect-no-message", "", Needs::RunningProgram, ExpectNoMessage},
    {"pages", "", Needs::RunningProgram, Pages},
    {"expect-page-line", "LINE", Needs::RunningProgram, ExpectPageLine},
    {"expect-document", "TARGET", Needs::StartedProgram, ExpectDocument},
};

}  // namespace

std::span<const Command> OutsideCommands() {
    return commands;
}

}  // namespace coinlet::player
