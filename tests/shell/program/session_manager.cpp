#include "session_manager.h"

#include <poll.h>

#include <cstdlib>
#include <gtest/gtest.h>
#include <vector>

// Last, since they have macros of very common names.
// clang-format off
#include <X11/ICE/ICElib.h>
#include <X11/SM/SMlib.h>
// clang-format on

namespace coinlet::test {

namespace {

constexpr int longestMessage = 256;

Bool AnybodyMayJoin(char*) {
    return True;
}

bool HasSomething(int file) {
    pollfd waiting{.fd = file, .events = POLLIN, .revents = 0};
    return ::poll(&waiting, 1, 0) > 0;
}

}  // namespace

struct SessionManager::Parts {
    std::string address;
    int listenerCount = 0;
    IceListenObj* listeners = nullptr;
    std::vector<IceConn> connections;
    std::vector<SmsConn> members;
    State state;
    bool isEnding = false;

    static void ConnectionCame(IceConn connection, IcePointer manager, Bool opening, IcePointer*);
    static void Welcome(Parts& parts, unsigned long* mask, SmsCallbacks* callbacks);
};

namespace {

/// The library takes its functions once for all its life, whoever is the manager then.
void* currentManager = nullptr;

}  // namespace

SessionManager::SessionManager() : parts_(std::make_unique<Parts>()) {
    char message[longestMessage] = "";
    static const Status initialised = SmsInitialize(
        "coinlet", "1",
        [](SmsConn, SmPointer, unsigned long* mask, SmsCallbacks* callbacks, char**) -> Status {
            Parts::Welcome(*static_cast<Parts*>(currentManager), mask, callbacks);
            return 1;
        },
        nullptr, AnybodyMayJoin, longestMessage, message);
    EXPECT_NE(initialised, 0) << message;
    currentManager = parts_.get();
    IceAddConnectionWatch(Parts::ConnectionCame, parts_.get());
    EXPECT_NE(IceListenForConnections(&parts_->listenerCount, &parts_->listeners, longestMessage, message), 0)
        << message;
    for (int i = 0; i < parts_->listenerCount; ++i)
        IceSetHostBasedAuthProc(parts_->listeners[i], AnybodyMayJoin);
    char* const list = IceComposeNetworkIdList(parts_->listenerCount, parts_->listeners);
    parts_->address = list;
    std::free(list);
}

SessionManager::~SessionManager() {
    for (SmsConn member : parts_->members)
        SmsCleanUp(member);
    for (IceConn connection : std::vector(parts_->connections)) {
        IceSetShutdownNegotiation(connection, False);
        IceCloseConnection(connection);
    }
    IceRemoveConnectionWatch(Parts::ConnectionCame, parts_.get());
    IceFreeListenObjs(parts_->listenerCount, parts_->listeners);
}

std::string SessionManager::Address() const {
    return parts_->address;
}

void SessionManager::Parts::ConnectionCame(IceConn connection, IcePointer manager, Bool opening,
                                           IcePointer*) {
    auto& connections = static_cast<Parts*>(manager)->connections;
    if (opening) {
        connections.push_back(connection);
    } else {
        std::erase(connections, connection);
    }
}

void SessionManager::Parts::Welcome(Parts& parts, unsigned long* mask, SmsCallbacks* callbacks) {
    *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
            SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask | SmsSaveYourselfDoneProcMask |
            SmsCloseConnectionProcMask | SmsSetPropertiesProcMask | SmsDeletePropertiesProcMask |
            SmsGetPropertiesProcMask;
    callbacks->register_client = {.callback = [](SmsConn member, SmPointer data, char* previous) -> Status {
                                      auto& self = *static_cast<Parts*>(data);
                                      std::free(previous);
                                      char* const name = SmsGenerateClientID(member);
                                      SmsRegisterClientReply(member, name);  // takes a copy
                                      std::free(name);
                                      self.members.push_back(member);
                                      // A newcomer is asked to save at once, to learn how it would be started
                                      // again.
                                      SmsSaveYourself(member, SmSaveLocal, False, SmInteractStyleNone, False);
                                      return 1;
                                  },
                                  .manager_data = &parts};
    callbacks->interact_request = {
        .callback = [](SmsConn, SmPointer, int) { ADD_FAILURE() << "it would ask"; }, .manager_data = &parts};
    callbacks->interact_done = {.callback = [](SmsConn, SmPointer, Bool) {}, .manager_data = &parts};
    callbacks->save_yourself_request = {.callback = [](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {},
                                        .manager_data = &parts};
    callbacks->save_yourself_phase2_request = {
        .callback = [](SmsConn member, SmPointer) { SmsSaveYourselfPhase2(member); }, .manager_data = &parts};
    callbacks->save_yourself_done = {.callback =
                                         [](SmsConn member, SmPointer data, Bool) {
                                             auto& self = *static_cast<Parts*>(data);
                                             if (self.isEnding) {
                                                 ++self.state.saved;
                                             } else {
                                                 SmsSaveComplete(member);
                                                 self.state.members = static_cast<int>(self.members.size());
                                             }
                                         },
                                     .manager_data = &parts};
    callbacks->close_connection = {.callback =
                                       [](SmsConn member, SmPointer data, int count, char** reasons) {
                                           auto& self = *static_cast<Parts*>(data);
                                           SmFreeReasons(count, reasons);
                                           IceConn connection = SmsGetIceConnection(member);
                                           std::erase(self.members, member);
                                           SmsCleanUp(member);
                                           IceSetShutdownNegotiation(connection, False);
                                           IceCloseConnection(connection);
                                       },
                                   .manager_data = &parts};
    callbacks->set_properties = {.callback =
                                     [](SmsConn, SmPointer, int count, SmProp** properties) {
                                         for (int i = 0; i < count; ++i)
                                             SmFreeProperty(properties[i]);
                                         std::free(properties);
                                     },
                                 .manager_data = &parts};
    callbacks->delete_properties = {.callback =
                                        [](SmsConn, SmPointer, int count, char** names) {
                                            for (int i = 0; i < count; ++i)
                                                std::free(names[i]);
                                            std::free(names);
                                        },
                                    .manager_data = &parts};
    callbacks->get_properties = {
        .callback = [](SmsConn member, SmPointer) { SmsReturnProperties(member, 0, nullptr); },
        .manager_data = &parts};
}

SessionManager::State SessionManager::Serve() {
    for (int i = 0; i < parts_->listenerCount; ++i) {
        if (!HasSomething(IceGetListenConnectionNumber(parts_->listeners[i]))) continue;
        IceAcceptStatus accepted = IceAcceptFailure;
        IceAcceptConnection(parts_->listeners[i], &accepted);
        EXPECT_EQ(accepted, IceAcceptSuccess);
    }
    // What is served may close a connection.
    const std::vector<IceConn> present = parts_->connections;
    for (IceConn connection : present)
        if (HasSomething(IceConnectionNumber(connection))) IceProcessMessages(connection, nullptr, nullptr);
    return parts_->state;
}

void SessionManager::AskToSave() {
    parts_->isEnding = true;
    for (SmsConn member : parts_->members)
        SmsSaveYourself(member, SmSaveBoth, True, SmInteractStyleNone, False);
}

void SessionManager::GiveUp() {
    parts_->isEnding = false;
    for (SmsConn member : parts_->members)
        SmsShutdownCancelled(member);
}

void SessionManager::End() {
    for (SmsConn member : parts_->members)
        SmsDie(member);
}

}  // namespace coinlet::test
