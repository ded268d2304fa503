#include "monkey/SenderTables.h"

QList<Senders::Sender> Senders::all()
{
    return ofFoundationAndChoosers() + ofFrameAndDocking() + ofMessagesAndBrowser() + ofTags() + ofValues();
}
