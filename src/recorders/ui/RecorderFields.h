#pragma once

#include "recorders/detect/NVRDetect.h"

#include <array>

class QLineEdit;

// The five fields that say which recorder is meant and how to log in to it, in the order of ManualField. It gives the
// fields their lengths, the port its digits, and the password its eye; the fields belong to their window.
class RecorderFields
{
public:
    static constexpr int kCount = 5;
    static constexpr std::array<int, kCount> kLengths{31, 255, 5, 31,
                                                      31}; // characters; a camera's fields have the same
    explicit RecorderFields(const std::array<QLineEdit*, kCount>& fields);

    // Says what is missing or wrong in a box and goes to that field. Looks a host name up, so it may wait.
    bool check() const;
    // The recorder as typed; the slot is the caller's.
    NVRDetectItem item() const;
    void set(const NVRDetectItem& item);
    QLineEdit* field(ManualField which) const;
    // Puts the keyboard into a field with its text selected.
    void go(ManualField which) const;
    // The fields' labels are their buddies: their texts become the accessible names, once the language is settled.
    void nameByLabels() const;

private:
    std::array<QLineEdit*, kCount> m_fields;
};
