#include "platform/SessionSocket.h"

#include <QFile>
#include <QSocketNotifier>
#include <algorithm>
#include <array>
#include <optional>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr size_t longestMessage = 4096; // the rest of a longer one is lost

/// The system's form of a path, or nothing when the path is longer than the system takes for a socket.
std::optional<sockaddr_un> Address(const QByteArray &path)
{
    sockaddr_un address{};
    if (path.isEmpty() || static_cast<size_t>(path.size()) >= sizeof(address.sun_path))
        return std::nullopt;
    address.sun_family = AF_UNIX;
    std::copy(path.cbegin(), path.cend(), address.sun_path);
    return address;
}

const sockaddr *Generic(const sockaddr_un &address)
{
    return reinterpret_cast<const sockaddr *>(&address);
}

int MakeSocket()
{
    return ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

} // namespace

SessionSocket::SessionSocket(const QString &nativePath, Receiver receive)
    : m_path(QFile::encodeName(nativePath))
    , m_receive(std::move(receive))
{
    const auto address = Address(m_path);
    if (!address)
        return;
    m_socket = MakeSocket();
    ::unlink(m_path.constData());
    // Before the socket has its name nobody can send; on Linux the right to do so is settled then.
    if (m_socket < 0 || ::fchmod(m_socket, S_IRUSR | S_IWUSR) != 0 ||
        ::bind(m_socket, Generic(*address), sizeof(*address)) != 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_socket, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this] { ReceiveOne(); });
}

SessionSocket::~SessionSocket()
{
    if (m_notifier)
        ::unlink(m_path.constData());
    m_notifier.reset();
    if (m_socket >= 0)
        ::close(m_socket);
}

void SessionSocket::ReceiveOne()
{
    std::array<char, longestMessage> bytes{};
    const ssize_t count = ::recv(m_socket, bytes.data(), bytes.size(), 0);
    if (count >= 0)
        m_receive(QByteArray(bytes.data(), count));
}

bool SessionSocket::Send(const QString &nativePath, const QByteArray &message)
{
    const auto address = Address(QFile::encodeName(nativePath));
    const int socket = address ? MakeSocket() : -1;
    if (socket < 0)
        return false;
    const ssize_t sent = ::sendto(socket, message.constData(), static_cast<size_t>(message.size()),
                                  MSG_NOSIGNAL, Generic(*address), sizeof(*address));
    ::close(socket);
    return sent == message.size();
}
