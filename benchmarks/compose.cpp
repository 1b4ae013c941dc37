// Composes one message with the given files as attachments, and prints its size in bytes.
#include <iostream>

#include "mail/Message.h"
#include "platform/Registry.h"

int main(int argumentCount, char** arguments) {
    const auto registry = cvlang::SystemRegistry();
    const cvlang::Configuration config(*registry);
    const cvlang::Logs logs;
    cvlang::Message message(config, logs);
    message.MailFrom = "from@benchmark.example";
    message.MailTo = "to@benchmark.example";
    for (int i = 1; i < argumentCount; ++i)
        message.AddAttachment(arguments[i], "");
    std::cout << message.ComposeText().size() << '\n';
}
