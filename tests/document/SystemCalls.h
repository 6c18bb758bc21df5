#pragma once

namespace veltrix::test {

/// Makes one of the system's file calls of this process fail.
struct SystemCalls {
    /// From now on calls are counted, and the one of this number (from 1; 0 for none) fails.
    static void Watch(int failing, int error);

    /// Ends the counting; how many calls there were.
    static int Stop();

    /// The rights that the last file was created with that this process created.
    static unsigned LastCreated();
};

} // namespace veltrix::test
