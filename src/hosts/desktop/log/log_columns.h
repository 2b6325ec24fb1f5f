#pragma once

class ListView;

namespace desktop {

/// Where the fields of a log line stand in its list: columns from 1, 0 for one that is not there.
struct LogColumns {
    int number = 1;
    int timeStamp = 2;
    int source = 3;
    int traceNumber = 4;
    int component = 5;
    int level = 6;
    int thread = 0;
    int port = 0;
    int callId = 0;
    int trace = 7;

    static LogColumns of(const ListView& list);
};

} // namespace desktop
