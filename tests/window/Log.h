// What the toolkit complains about.
#pragma once

// Keeps every warning and critical message of the toolkit's log from now on.
void WatchLog();
// Fails the running test once for each message kept, and forgets them.
void FailOnComplaints();
