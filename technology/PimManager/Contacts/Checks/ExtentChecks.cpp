#include "Checks/ExtentChecks.h"

#include <array>

namespace PimManager::Contacts::Checks
{

namespace
{

Broken AtExtent( const char* a_what, const PimContactExtent& a_extent )
{
    return QByteArray( a_what ) + ": extent at " + QByteArray::number( a_extent.Offset() ) + ", " +
           NameOf( a_extent.Kind() ).latin1() + ", card " + QByteArray::number( a_extent.Card() );
}

Broken BrokenOrder( const Subject& a_subject )
{
    qint64 offset = 0;
    const Broken broken = FirstBrokenOf( a_subject.m_reading.m_extents,
                                         [&offset]( const PimContactExtent& a_extent )
                                         {
                                             const qint64 expected = offset;
                                             offset += a_extent.Length();
                                             return a_extent.Offset() == expected && a_extent.Length() > 0
                                                        ? Broken()
                                                        : AtExtent( "a gap, an overlap or an empty extent", a_extent );
                                         } );
    return broken.isEmpty() ? Same( "bytes of all extents", offset, a_subject.m_text.size() ) : broken;
}

Broken BrokenBytes( const Subject& a_subject )
{
    return FirstBrokenOf(
        a_subject.m_reading.m_extents,
        [&a_subject]( const PimContactExtent& a_extent )
        {
            const QByteArray expected = Slice( a_subject.m_text, a_extent.Offset(), a_extent.Length() );
            return a_extent.Bytes() == expected ? Broken() : AtExtent( "not the bytes of the file", a_extent );
        } );
}

// A card ends when another number follows. 0 may follow any number, and after it only a greater one.
Broken BrokenNumbers( const Subject& a_subject )
{
    qint64 last = 0;
    bool isLeft = false;
    return FirstBrokenOf( a_subject.m_reading.m_extents,
                          [&]( const PimContactExtent& a_extent )
                          {
                              const qint64 number = a_extent.Card();
                              const bool isWrong = number < 0 || number > a_subject.m_reading.m_report.Cards() ||
                                                   ( number != 0 && ( isLeft ? number <= last : number < last ) );
                              isLeft = number == 0;
                              last = number == 0 ? last : number;
                              return isWrong ? AtExtent( "wrong number of the card", a_extent ) : Broken();
                          } );
}

bool IsOfACard( PimContactExtentKind a_kind )
{
    return a_kind == PimContactExtentKind::Line || a_kind == PimContactExtentKind::Boundary ||
           a_kind == PimContactExtentKind::Dropped || a_kind == PimContactExtentKind::Filtered;
}

Broken BrokenKinds( const Subject& a_subject )
{
    return FirstBrokenOf( a_subject.m_reading.m_extents,
                          []( const PimContactExtent& a_extent )
                          {
                              const bool isInCard = a_extent.Card() != 0;
                              if ( IsOfACard( a_extent.Kind() ) && !isInCard )
                                  return AtExtent( "a part of a card outside cards", a_extent );
                              if ( a_extent.Kind() == PimContactExtentKind::Outside && isInCard )
                                  return AtExtent( "text outside in a card", a_extent );
                              return Broken();
                          } );
}

} // namespace

Broken BrokenExtents( const Subject& a_subject )
{
    return FirstBroken( [&] { return BrokenOrder( a_subject ); }, [&] { return BrokenBytes( a_subject ); },
                        [&] { return BrokenNumbers( a_subject ); }, [&] { return BrokenKinds( a_subject ); } );
}

Broken BrokenSums( const Subject& a_subject )
{
    std::array<qint64, s_kPimContactExtentKinds> bytes{};
    std::array<qint64, s_kPimContactExtentKinds> extents{};
    for ( const PimContactExtent& extent : a_subject.m_reading.m_extents )
    {
        bytes[static_cast<size_t>( extent.Kind() )] += extent.Length();
        ++extents[static_cast<size_t>( extent.Kind() )];
    }
    const PimContactReport& report = a_subject.m_reading.m_report;
    for ( int i = 0; i < s_kPimContactExtentKinds; ++i )
    {
        const auto kind = static_cast<PimContactExtentKind>( i );
        const auto index = static_cast<size_t>( i );
        const Broken broken =
            FirstBroken( [&] { return Same( "Report().Bytes( kind )", report.Bytes( kind ), bytes[index] ); },
                         [&] { return Same( "Report().Extents( kind )", report.Extents( kind ), extents[index] ); } );
        if ( !broken.isEmpty() )
            return broken + " for kind " + NameOf( kind ).latin1();
    }
    return Same( "Report().Bytes()", report.Bytes(), a_subject.m_text.size() );
}

} // namespace PimManager::Contacts::Checks
