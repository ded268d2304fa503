#include "monkey/SenderTables.h"

QList<Senders::Sender> Senders::all()
{
    QList<Sender> senders =
        ofFoundationAndChoosers() + ofFrameAndDocking() + ofMessagesAndBrowser() + ofTags() + ofValues();
#ifdef VELMO_APPLICATION
    senders += ofApplication();
#endif
    return senders;
}
