#pragma once

#include "recorders/detect/NVRDetect.h"

#include <array>

class QLineEdit;

inline constexpr int kUsualPort = 80;

// The five fields that say which recorder is meant and how to log in to it, in the order of ManualField. It gives the
// fields their lengths, the port its digits, and the password its eye; the fields belong to their window.
class RecorderFields
{
public:
    static constexpr int kCount = 5;
    // Characters; a camera's fields have the same.
    static constexpr std::array<int, kCount> kLengths{kRecorderNameLength, 255, 5, 31, 31};
    explicit RecorderFields(const std::array<QLineEdit*, kCount>& fields);

    // What is missing or wrong, see ValidateManualNVR. Blanks round name and address are taken off.
    QCoro::Task<ManualFault> check(Work& work) const;
    // The recorder as typed, without blanks round its name and address; the slot is the caller's.
    NVRDetectItem item() const;
    void set(const NVRDetectItem& item);
    QLineEdit* field(ManualField which) const;
    // Says in a box what is wrong and leads to the field at fault.
    void tell(const ManualFault& fault) const;
    // Puts the keyboard into a field with its text selected.
    void go(ManualField which) const;
    // The fields' labels are their buddies: their texts become the accessible names, once the language is settled.
    void nameByLabels() const;

private:
    std::array<QLineEdit*, kCount> m_fields;
};

// Two recorders of one name are told from each other by their numbers alone: whether that is meant is asked.
bool NamesSettled(const RecorderSet& recorders, const std::vector<NVRDetectItem>& items);
