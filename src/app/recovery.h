#pragma once

// The start after a run of the program that did not end as it should: what it had not saved comes back.

namespace quadrelle {

struct Editor_Parts;

// Tells of the error that ended the last run, if it did, and answers whether there was one.
bool tell_last_error();
// Asks where there is something to recover. False when nothing was asked or told.
bool recover_journals(Editor_Parts& editor);

} // namespace quadrelle
