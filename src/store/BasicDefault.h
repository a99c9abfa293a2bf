#pragma once

#include "store/Databases.h"
#include "store/RecordFamily.h"
#include "store/records/BasicDefaultRecord.h"

struct BasicDefaultSet
{
    BasicDefaultRecord stored;
    BasicDefaultRecord edit;
};

// Reads the row into the stored record; 1, or 0 when the table cannot be opened.
qint16 GetBasicDefault(Databases& databases, BasicDefaultSet& set);
// Writes the stored record to the row of its brand; without such a row nothing is written. 1 or 0.
qint16 SaveMyDefault(Databases& databases, BasicDefaultSet& set);
// Fills the run-time facts of both records: the number of monitors and the local IP address.
void WMIGet(BasicDefaultSet& set);
// Makes the autostart entry of CMS_Core follow bStartup in the user's scope; the machine's scope never keeps one.
void StartUp_Reg(const BasicDefaultRecord& record);
// Writes the installation facts to DetailExport-yyyymmdd.txt beside the program; the file's full name in any case.
QString DetailExport();

RecordFamily BasicDefaultFamily(Databases& databases, BasicDefaultSet& set);
