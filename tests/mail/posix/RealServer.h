// A real mail server, which takes one message and tells what another MIME parser reads in it.
#pragma once

#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

namespace cvlang {

class RealServer {
  public:
    /// The folder that attachments are compared with; see receive_mail.py.
    explicit RealServer(const std::filesystem::path& folder, const std::string& options = "")
        : output_(popen(("timeout 60 " MAIL_TEST_PYTHON " -W ignore " RECEIVE_MAIL " " +
                         folder.string() + " " + options)
                            .c_str(),
                        "r"),
                  pclose),
          port_(NextLine()) {}

    /// 0 without a server: python3-aiosmtpd is needed.
    int Port() const { return port_.empty() ? 0 : std::stoi(port_); }

    /// What the server tells once it has the message.
    std::string Report() {
        std::string report;
        for (std::string line = NextLine(); !line.empty(); line = NextLine())
            report += line;
        return report;
    }

  private:
    std::string NextLine() {
        std::array<char, 4096> line{};
        return std::fgets(line.data(), line.size(), output_.get()) != nullptr ? line.data() : "";
    }

    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> output_;
    const std::string port_;
};

}  // namespace cvlang
