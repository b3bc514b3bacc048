#pragma once

#include <functional>
#include <mutex>
#include <vector>
#include <windows.h>

// One message that a window received, in order.
struct LoggedMessage
{
    HWND window;
    int controlId;
    UINT message;
    WPARAM wParam;
    bool visible; // the window was to be seen
    RECT update;  // of a request to paint: what is to be painted
};

// Writes down the messages that the windows of this thread receive: all that are sent, and of the posted ones the
// request to paint. One at a time, made on the thread that it watches.
class MessageLog
{
public:
    MessageLog();
    ~MessageLog();
    MessageLog(const MessageLog&) = delete;
    MessageLog& operator=(const MessageLog&) = delete;

    using Predicate = std::function<bool(const LoggedMessage&)>;

    // What came since the log was made or taken from last.
    std::vector<LoggedMessage> Take();

private:
    static LRESULT CALLBACK SentProc(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK PostedProc(int code, WPARAM wParam, LPARAM lParam);
    void Add(HWND window, UINT message, WPARAM wParam);

    HHOOK m_sentHook;
    HHOOK m_postedHook;
    std::mutex m_mutex;
    std::vector<LoggedMessage> m_messages;
};

int Count(const std::vector<LoggedMessage>& messages, const MessageLog::Predicate& isCounted);
// To the control of that id, wherever it is.
int Count(const std::vector<LoggedMessage>& messages, int controlId, UINT message);

// A row was put into a list box or combo box.
bool AddsRow(const LoggedMessage& message);
// Something changed that a control shows.
bool ChangesContent(const LoggedMessage& message);
