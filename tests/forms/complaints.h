// tests/forms/complaints.h
//
// What the system's toolkit complains of where no user looks: on the error output.

#pragma once

namespace lv {

/// From now on a warning of the toolkit, or worse, fails the test that brings it.
void FailAtComplaints();

}  // namespace lv
